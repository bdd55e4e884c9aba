#include "pane/Zarvil_Preferences.h"
#include "protocol/Settings.h"
#include "scripts/ScriptFile.h"
#include "scripts/ScriptRecord.h"

#include <algorithm>
#include <utility>

namespace zarvil {

namespace {

constexpr std::string_view titleInUse = "There is a script of this title already.";

Record makeScript(std::string_view title, std::string_view text) {
    return makeRecord(
        Dictionary{{std::string(script::title), title}, {std::string(script::text), text}});
}

} // namespace

bool Zarvil_Preferences::scriptExists(std::string_view title) const {
    return scriptOfTitle(scriptsArrayController, title) != nullptr;
}

/// Items of thousands of scripts are made, and handed their records, when they are first seen.
/// Those that share a title are compared at once, with the contents that they have now.
void Zarvil_Preferences::listScript(const Record& record) {
    const std::string* title = record->stringForKey(script::title);
    if (title && !scriptExists(*title)) {
        scriptsArrayController.addObject(record);
        return;
    }
    sameTitledScripts_.insert(record.get());
    scriptsArrayController.addObject(record);
    handToItem(record);
}

void Zarvil_Preferences::scriptItemWasMade(CollectionViewItem& item) {
    auto* script = dynamic_cast<ZVScriptCollectionItem*>(&item);
    if (!script || sameTitledScripts_.contains(item.representedObject().get()))
        return;
    script->setData(item.representedObject());
    script->setOwner(this);
}

void Zarvil_Preferences::handToItem(const Record& record) {
    // By contents: of equal scripts only the first one's item is given a record, on purpose.
    const auto index = scriptsArrayController.indexOfObject(record);
    if (!index)
        return;
    if (const auto item = scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(*index)) {
        item->setData(record);
        item->setOwner(this);
    }
}

void Zarvil_Preferences::loadScripts() {
    const std::string folder = platform_.files.expandingTilde(kZVScriptingFolder);
    if (platform_.files.kindOfItem(folder) == FileKind::Directory) {
        // Every visible entry is a script, whatever its extension, sub-folders included, on
        // purpose.
        auto names = platform_.files.visibleContentsOfDirectory(folder);
        scriptsArrayController.reserve(names.size());
        for (std::string& name : names)
            listScript(scriptTexts_.makeScript(folder, std::move(name)));
    } else if (const auto error = platform_.files.createDirectory(folder)) {
        platform_.errors.presentError(*error);
    }
    resumeDrafts();
}

// The list is emptied whenever the agent misses a ping, in the middle of a word.
void Zarvil_Preferences::keepDrafts() {
    scriptsCollection.forEachMadeItem<ZVScriptCollectionItem>(
        [this](const ZVScriptCollectionItem& item) {
            if (auto draft = item.draft())
                scriptDrafts_.insert(scriptDrafts_.begin(), *std::move(draft)); // the newest first
        });
}

/// First where the script is the same, then where it is the only one of its title, unless that
/// would rename another text's file. What finds neither is in no file: it gets a card of its own.
void Zarvil_Preferences::resumeDrafts() {
    std::erase_if(scriptDrafts_, [this](const ScriptDraft& draft) {
        return resumeDraft(draft, scriptsArrayController.indexOfObject(makeRecord(draft.saved)));
    });
    std::erase_if(scriptDrafts_, [this](const ScriptDraft& draft) {
        const std::string* title = draft.saved.stringForKey(script::title);
        const Record script = title && draft.title == *title
                                  ? onlyScriptOfTitle(scriptsArrayController, *title)
                                  : nullptr;
        return script && resumeDraft(draft, scriptsArrayController.indexOfObject(script));
    });
    for (const ScriptDraft& draft : std::exchange(scriptDrafts_, {})) {
        if (makeScript(draft.title, draft.text)->contents() == draft.saved)
            continue; // nothing was typed
        const Record record = makeRecord(draft.saved);
        scriptsArrayController.addObject(record);
        const std::size_t last = scriptsArrayController.arrangedObjects().size() - 1;
        if (resumeDraft(draft, last))
            scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(last)->noteUnsaved(draft);
    }
}

/// A card that is edited already keeps what was typed in it.
bool Zarvil_Preferences::resumeDraft(const ScriptDraft& draft, std::optional<std::size_t> index) {
    const auto item =
        index ? scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(*index) : nullptr;
    if (!item || !item->data() || item->editing())
        return false;
    item->resume(draft);
    return true;
}

void Zarvil_Preferences::unloadScripts() {
    keepDrafts();
    sameTitledScripts_.clear();
    scriptsArrayController.removeAllArrangedObjects();
    scriptsArrayController.rearrangeObjects();
}

void Zarvil_Preferences::create(Control* /*sender*/) {
    const std::string title = scriptsTitle.stringValue();
    if (title.empty() || scriptExists(title)) {
        createNewScript.setEnabled(false);
        showTitleFault();
        return;
    }
    const std::string path = script::filePath(platform_.files, title);
    scriptFilesWillChange();
    if (const auto error = platform_.files.writeText("", path, Atomicity::Direct)) {
        platform_.errors.presentError(*error);
        return;
    }
    listScript(makeScript(title, ""));
    scriptsTitle.setStringValue("");
    createNewScript.setEnabled(false);
    scriptsArrayController.rearrangeObjects();
}

void Zarvil_Preferences::removeScript(const Record& record) {
    if (record) {
        sameTitledScripts_.erase(record.get());
        scriptsArrayController.removeObject(record);
    }
    scriptsArrayController.rearrangeObjects();
    showTitleFault();
}

bool Zarvil_Preferences::hasAnotherScriptOfFile(std::string_view title,
                                                const Record& script) const {
    const std::string path = script::filePath(platform_.files, title);
    return std::ranges::any_of(scriptsArrayController.arrangedObjects(), [&](const Record& other) {
        const std::string* listed = other->stringForKey(script::title);
        return other != script && listed && script::filePath(platform_.files, *listed) == path;
    });
}

bool Zarvil_Preferences::admitsRemoval() {
    constexpr double longestDoubleClick = 0.5; // seconds
    const double now = platform_.clock.timeIntervalSinceReferenceDate();
    // A clock that was set back does not hold the buttons up.
    if (lastRemoval_ && now >= *lastRemoval_ && now - *lastRemoval_ < longestDoubleClick)
        return false;
    lastRemoval_ = now;
    return true;
}

void Zarvil_Preferences::useScripts(Control* sender) {
    const auto* box = dynamic_cast<Button*>(sender);
    if (!box)
        return;
    const bool on = box->isOn();
    if (on) {
        scriptsCollection.setAlphaValue(alpha::active);
        loadScripts();
    } else {
        scriptsTitle.setStringValue("");
        scriptsCollection.setAlphaValue(alpha::dimmed);
        unloadScripts();
    }
    scriptsTitle.setEnabled(on);
    createNewScript.setEnabled(false);
    postSetting(setting::useScripts, on);
}

void Zarvil_Preferences::scriptsTitleChanged(TextField& field) {
    if (&field == &scriptsTitle) {
        updateNewScriptsTitle(&field);
    } else if (&field == &pushUserName) {
        pushValidationStatus.setHidden(true);
        pushValidate.setEnabled(!pushUserName.stringValue().empty());
    }
}

void Zarvil_Preferences::updateNewScriptsTitle(Control* sender) {
    const auto* field = dynamic_cast<TextField*>(sender);
    createNewScript.setEnabled(field && !field->stringValue().empty() &&
                               !scriptExists(field->stringValue()));
    showTitleFault();
}

void Zarvil_Preferences::showTitleFault() {
    scriptsTitle.setFault(scriptExists(scriptsTitle.stringValue())
                              ? platform_.strings.localizedString(titleInUse)
                              : std::string());
}

void Zarvil_Preferences::setNewScriptTitleVal(std::optional<std::string> title) {
    newScriptTitleVal_ = std::move(title);
    // One-sided on purpose: only `updateNewScriptsTitle` ever enables the button.
    if (!newScriptTitleVal_ || scriptExists(*newScriptTitleVal_))
        createNewScript.setEnabled(false);
}

} // namespace zarvil
