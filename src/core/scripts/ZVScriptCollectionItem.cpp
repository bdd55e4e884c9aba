#include "scripts/ZVScriptCollectionItem.h"

namespace zarvil {

namespace {

constexpr Rect titleFrame{15, 108, 490, 26};
constexpr double titleFontSize = 15;
constexpr Rect textFrame{20, 10, 558, 70};
constexpr double textFontSize = 13;

constexpr std::string_view untitled = "Zarvil Script";
constexpr std::string_view emptyScript = "Can't execute empty script!";
constexpr std::int64_t emptyScriptCode = 1;

Error cocoaError(std::int64_t code, std::string description) {
    return {std::string(cocoaErrorDomain), code, std::move(description)};
}

bool isEmpty(const std::string* text) { return !text || text->empty(); }

} // namespace

void ScriptItemView::addSubviews(const Subviews& fields) {
    Subviews all = subviews();
    all.insert(all.end(), fields.begin(), fields.end());
    subviews_.set(std::move(all));
}

void ScriptItemView::removeSubview(const ScriptEditField* field) {
    Subviews rest = subviews();
    std::erase_if(rest, [field](const auto& subview) { return subview.get() == field; });
    subviews_.set(std::move(rest));
}

const std::string* ZVScriptCollectionItem::stringOfRecord(std::string_view key) const {
    return data_ ? data_->contents().stringForKey(key) : nullptr;
}

void ZVScriptCollectionItem::runAsHandler(void (ZVScriptCollectionItem::*operation)()) {
    platform_.handlers.run(
        [this, self = weak_from_this().lock(), operation] { (this->*operation)(); });
}

void ZVScriptCollectionItem::edit(Control* /*sender*/) {
    runAsHandler(&ZVScriptCollectionItem::toggleEditing);
}

void ZVScriptCollectionItem::execute(Control* /*sender*/) {
    runAsHandler(&ZVScriptCollectionItem::executeNow);
}

void ZVScriptCollectionItem::remove(Control* /*sender*/) {
    runAsHandler(&ZVScriptCollectionItem::removeNow);
}

void ZVScriptCollectionItem::toggleEditing() {
    setEditing(!editing());
    if (editing())
        beginEditing();
    else if (eTitle_)
        save();
}

void ZVScriptCollectionItem::beginEditing() {
    const auto title = std::make_shared<ScriptEditField>(titleFrame, titleFontSize);
    const auto text = std::make_shared<ScriptEditField>(textFrame, textFontSize);
    if (const std::string* value = stringOfRecord(script::title))
        title->setStringValue(*value);
    if (const std::string* value = stringOfRecord(script::text))
        text->setStringValue(*value);
    eTitle_ = title.get();
    eText_ = text.get();
    view_.addSubviews({text, title});
}

void ZVScriptCollectionItem::save() {
    removeFile();
    validateData();
    const std::string* title = stringOfRecord(script::title);
    const std::string* text = stringOfRecord(script::text);
    // Another script of this title is replaced and a failure is not reported, both on purpose: the
    // record holds what the user typed, and the next save tries again.
    if (title && text)
        static_cast<void>(platform_.files.writeText(
            *text, script::filePath(platform_.files, *title), Atomicity::Atomic));
    view_.removeSubview(std::exchange(eTitle_, nullptr));
    view_.removeSubview(std::exchange(eText_, nullptr));
}

void ZVScriptCollectionItem::validateData() {
    storeEdited(script::title, eTitle_, untitled);
    storeEdited(script::text, eText_, "");
}

void ZVScriptCollectionItem::storeEdited(std::string_view key, const ScriptEditField* field,
                                         std::string_view fallback) {
    if (!data_)
        return;
    if (field && !field->stringValue().empty())
        data_->setObject(key, field->stringValue());
    else if (isEmpty(stringOfRecord(key)))
        data_->setObject(key, fallback);
}

void ZVScriptCollectionItem::executeNow() {
    if (editing())
        toggleEditing();
    const std::string* stored = stringOfRecord(script::text);
    if (isEmpty(stored)) {
        platform_.errors.presentError(
            cocoaError(emptyScriptCode, platform_.strings.localizedString(emptyScript)));
        return;
    }
    const std::string* title = stringOfRecord(script::title);
    progress_.run(isEmpty(title) ? untitled : *title, *stored);
}

void ZVScriptCollectionItem::removeNow() {
    removeFile();
    const Record record = data_;
    if (auto* owner = dynamic_cast<ScriptOwner*>(owner_))
        owner->removeScript(record);
}

void ZVScriptCollectionItem::removeFile() {
    const std::string* title = stringOfRecord(script::title);
    if (!title)
        return;
    if (const auto error = platform_.files.removeItem(script::filePath(platform_.files, *title)))
        platform_.errors.presentError(*error);
}

} // namespace zarvil
