#include "scripts/ZVScriptCollectionItem.h"

#include "interface/DisplayText.h"

namespace zarvil {

namespace {

constexpr Rect titleFrame{15, 108, 490, 26};
constexpr double titleFontSize = 15;
constexpr Rect textFrame{20, 10, 558, 70};
constexpr double textFontSize = 13;

constexpr std::string_view untitled = "Zarvil Script";
constexpr std::string_view notSaved = "Not saved";
constexpr std::string_view emptyScript = "Can't execute empty script!";
constexpr std::int64_t emptyScriptCode = 1;

Error cocoaError(std::int64_t code, std::string description) {
    return {std::string(cocoaErrorDomain), code, std::move(description)};
}

bool isEmpty(const std::string* text) { return !text || text->empty(); }

} // namespace

void ScriptEditField::userDidEditLines(std::string_view text) {
    if (!lineEnd_) {
        const auto end = stringValue().find('\n');
        const bool returns = end != std::string::npos && end > 0 && stringValue()[end - 1] == '\r';
        lineEnd_ = returns ? "\r\n" : "\n";
    }
    std::string edited;
    for (const char character : text) {
        if (character == '\n')
            edited += *lineEnd_;
        else
            edited += character;
    }
    userDidEdit(edited);
}

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
    return data_ ? data_->stringForKey(key) : nullptr;
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
    setOutcome({});
    setEditing(!editing());
    if (editing())
        beginEditing();
    else if (eTitle_)
        save();
}

void ZVScriptCollectionItem::beginEditing() {
    const auto title =
        std::make_shared<ScriptEditField>(ScriptEditField::Kind::Title, titleFrame, titleFontSize);
    const auto text =
        std::make_shared<ScriptEditField>(ScriptEditField::Kind::Text, textFrame, textFontSize);
    if (const std::string* value = stringOfRecord(script::title))
        title->setStringValue(*value);
    if (const std::string* value = stringOfRecord(script::text))
        text->setStringValue(*value);
    eTitle_ = title.get();
    eText_ = text.get();
    view_.addSubviews({text, title});
}

void ZVScriptCollectionItem::removeFields() {
    view_.removeSubview(std::exchange(eTitle_, nullptr));
    view_.removeSubview(std::exchange(eText_, nullptr));
}

void ZVScriptCollectionItem::cancelEditing() { runAsHandler(&ZVScriptCollectionItem::cancelNow); }

void ZVScriptCollectionItem::cancelNow() {
    if (!editing())
        return;
    setEditing(false);
    // A draft that came back and is dropped leaves what the file holds.
    if (saved_ && data_ && *saved_ == data_->contents())
        noteFailure(std::nullopt, {});
    removeFields();
}

bool ZVScriptCollectionItem::holdsTypedText() const {
    const auto differs = [this](const ScriptEditField* field, std::string_view key) {
        const std::string* stored = stringOfRecord(key);
        return field && field->stringValue() != (stored ? *stored : std::string());
    };
    return differs(eTitle_, script::title) || differs(eText_, script::text);
}

void ZVScriptCollectionItem::filesWillChange() const {
    if (auto* owner = dynamic_cast<ScriptOwner*>(owner_))
        owner->scriptFilesWillChange();
}

void ZVScriptCollectionItem::save() {
    filesWillChange();
    Dictionary before = data_ ? data_->contents() : Dictionary();
    const std::string* file = titleOfFile();
    const std::optional<std::string> former = file ? std::optional(*file) : std::nullopt;
    validateData();
    const Replacement outcome = writeFile(former);
    noteFailure(outcome.write, std::move(before));
    removeFields();
    if (outcome.removal)
        platform_.errors.presentError(*outcome.removal);
}

// Another script of the new title is replaced and a failure to write shows no alert, both on
// purpose.
Replacement ZVScriptCollectionItem::writeFile(const std::optional<std::string>& formerTitle) {
    const std::string* title = stringOfRecord(script::title);
    const std::string* text = stringOfRecord(script::text);
    if (!title || !text)
        return {};
    const std::string path = script::filePath(platform_.files, *title);
    if (!formerTitle)
        return {std::nullopt, platform_.files.writeText(*text, path, Atomicity::Atomic)};
    return platform_.files.replaceItem(script::filePath(platform_.files, *formerTitle), *text,
                                       path);
}

void ZVScriptCollectionItem::noteFailure(const std::optional<Error>& failure, Dictionary before) {
    if (!failure)
        saved_.reset();
    else if (!saved_)
        saved_ = std::move(before);
    saveFailure_ = failure;
    showNote();
}

void ZVScriptCollectionItem::showNote() {
    if (saved_)
        note_.set({localized(notSaved), saveFailure_ ? saveFailure_->description : ""});
    else
        note_.set({});
}

const std::string* ZVScriptCollectionItem::titleOfFile() const {
    if (!saved_)
        return stringOfRecord(script::title);
    const std::string* title = saved_->stringForKey(script::title);
    const auto* owner = dynamic_cast<const ScriptOwner*>(owner_);
    // Another script may have been created there since, or saved.
    return title && owner && owner->hasAnotherScriptOfFile(*title, data_) ? nullptr : title;
}

std::optional<ScriptDraft> ZVScriptCollectionItem::draft() const {
    if (!data_ || (!eTitle_ && !saved_))
        return std::nullopt;
    const auto typed = [this](const ScriptEditField* field, std::string_view key) {
        const std::string* stored = stringOfRecord(key);
        return field ? field->stringValue() : stored ? *stored : std::string();
    };
    return ScriptDraft{saved_.value_or(data_->contents()), typed(eTitle_, script::title),
                       typed(eText_, script::text), saveFailure_};
}

void ZVScriptCollectionItem::resume(const ScriptDraft& draft) {
    if (!data_ || editing())
        return;
    toggleEditing(); // within the handler that lists the scripts
    const auto fill = [&draft](ScriptEditField& field, std::string_view key,
                               const std::string& typed) {
        // What was left alone shows the file as it is by now.
        const std::string* saved = draft.saved.stringForKey(key);
        if (!saved || typed != *saved)
            field.setStringValue(typed);
    };
    fill(*eTitle_, script::title, draft.title);
    fill(*eText_, script::text, draft.text);
    if (draft.failure)
        noteFailure(draft.failure, data_->contents());
}

void ZVScriptCollectionItem::noteUnsaved(const ScriptDraft& draft) {
    validateData();
    saved_ = draft.saved;
    saveFailure_ = draft.failure;
    showNote();
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
    setOutcome({});
    setRunning(true);
    progress_.run(showableText(isEmpty(title) ? untitled : *title, longestShownLine), *stored,
                  [weak = weak_from_this()](const ScriptError* error) {
                      const auto item = weak.lock();
                      if (!item)
                          return;
                      item->setRunning(false);
                      item->setOutcome(item->outcomeOf(error));
                  });
}

void ZVScriptCollectionItem::removeNow() {
    filesWillChange();
    removeFile();
    const Record record = data_;
    if (auto* owner = dynamic_cast<ScriptOwner*>(owner_))
        owner->removeScript(record);
}

void ZVScriptCollectionItem::userDidPressRemove() {
    auto* owner = dynamic_cast<ScriptOwner*>(owner_);
    if (!owner || owner->admitsRemoval())
        remove();
}

void ZVScriptCollectionItem::removeFile() {
    const std::string* title = titleOfFile();
    if (!title)
        return;
    if (const auto error = platform_.files.removeItem(script::filePath(platform_.files, *title)))
        platform_.errors.presentError(*error);
}

} // namespace zarvil
