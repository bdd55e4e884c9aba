#pragma once

#include "PaneHarness.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <string>
#include <vector>

namespace zarvil {

/// A pane with scripts switched on over a fake scripts folder.
class ScriptsHarness : public PaneHarness {
protected:
    ScriptsHarness() { files.folders.insert(folder); }

    static std::string pathOf(std::string_view fileName) {
        return folder + "/" + std::string(fileName);
    }
    void put(std::string_view fileName, std::string_view text) {
        files.files[pathOf(fileName)] = text;
    }
    void loadWithScripts() { loadWithAgent({{"UseScripts", true}}); }

    std::shared_ptr<ZVScriptCollectionItem> item(std::size_t index) {
        return pane.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(index);
    }
    std::string listed(std::size_t index, std::string_view key) const {
        const std::string* value =
            pane.scriptsArrayController.arrangedObjects().at(index)->contents().stringForKey(key);
        return value ? *value : "(none)";
    }
    std::vector<std::string> titles() const {
        std::vector<std::string> all;
        for (std::size_t index = 0; index < count(); ++index)
            all.push_back(listed(index, script::title));
        return all;
    }
    std::size_t count() const { return pane.scriptsArrayController.arrangedObjects().size(); }

    /// Types a title and presses the button, if it lets itself be pressed.
    void createByHand(std::string_view title) {
        pane.createNewScript.setAction("create:");
        pane.scriptsTitle.userDidEdit(title);
        pane.createNewScript.performClick();
    }
    /// Edits a script in place, from the press on the edit button to the second one.
    void editByHand(ZVScriptCollectionItem& script, std::string_view title, std::string_view text) {
        script.edit();
        script.eTitle()->userDidEdit(title);
        script.eText()->userDidEdit(text);
        script.edit();
    }

    inline static const std::string folder = "/home/user/Library/Zarvil Scripts";
};

} // namespace zarvil
