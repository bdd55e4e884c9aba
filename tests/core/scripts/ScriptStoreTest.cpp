#include "ScriptsHarness.h"

#include <gmock/gmock.h>

namespace zarvil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ScriptStore = ScriptsHarness;

TEST_F(ScriptStore, aTitleIsTheFileNameWithoutItsLastExtension) {
    for (const std::string_view name : {"a.zvscript", "b.txt", "c.x.zvscript", "d", ".e.zvscript"})
        put(name, name);
    put("b.txt", "\uFEFFwithout its mark");
    files.folders.insert(pathOf("sub.folder"));
    loadWithScripts();
    EXPECT_THAT(titles(), ElementsAre("a", "b", "c.x", "d", "sub"));
    EXPECT_EQ(listed(1, script::text), "without its mark");
    EXPECT_EQ(listed(4, script::text), "");
    EXPECT_THAT(errors.presented, IsEmpty());
}

TEST_F(ScriptStore, ofEqualScriptsOnlyTheFirstItemIsGivenTheLaterRecord) {
    put("a.txt", "same");
    put("a.zvscript", "same");
    loadWithScripts();
    ASSERT_EQ(count(), 2U);
    EXPECT_EQ(item(0)->data(), pane.scriptsArrayController.arrangedObjects()[1]);
    EXPECT_EQ(item(1)->data(), nullptr);
    EXPECT_EQ(item(1)->owner(), nullptr);
}

TEST_F(ScriptStore, aSecondLoadListsEveryScriptTwice) {
    put("a.zvscript", "");
    loadWithScripts();
    pane.loadScripts();
    EXPECT_THAT(titles(), ElementsAre("a", "a"));
}

TEST_F(ScriptStore, textsAreReadInSlicesAndThereWhenAskedFor) {
    for (int index = 1000; index < 1200; ++index)
        put(std::to_string(index) + ".zvscript", "as listed");
    loadWithScripts();
    const auto change = [this] {
        for (auto& [path, text] : files.files)
            text = "changed later";
    };
    EXPECT_EQ(item(199)->shownLines().at(0), "as listed") << "before its turn";
    const auto other = item(1)->data();
    const std::string* title = other->stringForKey(script::title);
    editByHand(*item(0), "1001", "echo new");
    EXPECT_EQ(*other->stringForKey(script::text), "as listed") << "its file was replaced";
    EXPECT_EQ(other->stringForKey(script::title), title) << "does not move";
    pane.unloadScripts();
    pane.loadScripts();
    time.advance(0);
    change();
    EXPECT_EQ(listed(150, script::text), "as listed");
    pane.unloadScripts();
    pane.loadScripts();
    pane.unloadScripts();
    time.advance(0);
}

TEST_F(ScriptStore, aMissingFolderIsMadeAndNotListedInTheSameCall) {
    files.folders.clear();
    loadWithScripts();
    EXPECT_THAT(files.log, ElementsAre("create folder " + folder));
    EXPECT_THAT(errors.presented, IsEmpty());
    EXPECT_EQ(count(), 0U);
}

TEST_F(ScriptStore, creatingWritesAnEmptyFileDirectlyAndReadiesTheFieldForTheNext) {
    put("old.zvscript", "x");
    loadWithScripts();
    createByHand("new one");
    EXPECT_THAT(files.log, ElementsAre("write " + pathOf("new one.zvscript")));
    EXPECT_THAT(titles(), ElementsAre("old", "new one"));
    EXPECT_EQ(pane.scriptsTitle.stringValue(), "");
    EXPECT_FALSE(pane.createNewScript.isEnabled());
    EXPECT_EQ(item(1)->data(), pane.scriptsArrayController.arrangedObjects()[1]);
    EXPECT_EQ(item(1)->owner(), &pane);
    createByHand("new one");
    EXPECT_EQ(count(), 2U);
}

TEST_F(ScriptStore, theButtonFollowsTheTitleWhileTheUserTypes) {
    put("Backup.zvscript", "");
    loadWithScripts();
    struct Case {
        std::string_view typed;
        bool acceptable;
    };
    for (const auto& [typed, acceptable] : {Case{"B", true},
                                            {"Backup", false},
                                            {"backup", true},
                                            {"Backup ", true},
                                            {"", false},
                                            {"   ", true},
                                            {"../x", true}}) {
        pane.scriptsTitle.userDidEdit(typed);
        EXPECT_EQ(pane.createNewScript.isEnabled(), acceptable) << '"' << typed << '"';
    }
}

TEST_F(ScriptStore, createAsksForTheTitleAgainBeforeItTouchesAFile) {
    put("a.zvscript", "precious");
    loadWithScripts();
    for (const std::string_view title : {"a", ""}) {
        pane.scriptsTitle.setStringValue(title);
        pane.createNewScript.setEnabled(true);
        pane.performAction("create:", &pane.createNewScript);
        EXPECT_FALSE(pane.createNewScript.isEnabled());
    }
    EXPECT_THAT(files.log, IsEmpty());
    EXPECT_EQ(files.files[pathOf("a.zvscript")], "precious");
}

TEST_F(ScriptStore, aFailedCreationShowsItsErrorAndLeavesEverythingAsItWas) {
    loadWithScripts();
    createByHand("missing/deep");
    EXPECT_EQ(errors.presented.size(), 1U);
    EXPECT_EQ(count(), 0U);
    EXPECT_EQ(pane.scriptsTitle.stringValue(), "missing/deep");
    EXPECT_TRUE(pane.createNewScript.isEnabled());
}

TEST_F(ScriptStore, titlesBecomePathsAsTheyAre) {
    struct Case {
        std::string_view title;
        std::string path;
    };
    const Case cases[] = {
        {"a/b", folder + "/a/b.zvscript"},
        {"a//b/", folder + "/a/b.zvscript"},
        {"/a", folder + "/a.zvscript"},
        {"../a", folder + "/../a.zvscript"},
    };
    for (const auto& [title, path] : cases)
        EXPECT_EQ(script::filePath(files, title), path);
}

TEST_F(ScriptStore, aCandidateTitleCanOnlyDisableTheButton) {
    put("a.zvscript", "");
    loadWithScripts();
    struct Case {
        std::optional<std::string> title;
        bool enabledBefore;
        bool enabledAfter;
    };
    const Case cases[] = {{"new", false, false},
                          {"new", true, true},
                          {"a", true, false},
                          {std::nullopt, true, false},
                          {"", true, true}};
    for (const auto& [title, before, after] : cases) {
        pane.createNewScript.setEnabled(before);
        pane.setNewScriptTitleVal(title);
        EXPECT_EQ(pane.newScriptTitleVal(), title);
        EXPECT_EQ(pane.createNewScript.isEnabled(), after) << title.value_or("(nil)");
    }
}

TEST_F(ScriptStore, theSwitchLoadsAndEmptiesTheListAndTellsTheAgent) {
    put("a.zvscript", "x");
    loadWithAgent();
    pane.useScriptsButton.setAction("useScripts:");
    pane.useScriptsButton.performClick();
    EXPECT_THAT(titles(), ElementsAre("a"));
    EXPECT_TRUE(pane.placeholders.noScripts.isHidden());
    EXPECT_EQ(pane.scriptsCollection.alphaValue(), alpha::active);
    EXPECT_TRUE(pane.scriptsTitle.isEnabled());
    EXPECT_FALSE(pane.createNewScript.isEnabled());
    EXPECT_THAT(takeSent(), ElementsAre(settingChange("UseScripts", true)));

    pane.scriptsTitle.userDidEdit("half typed");
    pane.useScriptsButton.performClick();
    EXPECT_EQ(count(), 0U);
    EXPECT_FALSE(pane.placeholders.noScripts.isHidden());
    EXPECT_EQ(pane.scriptsCollection.alphaValue(), alpha::dimmed);
    EXPECT_FALSE(pane.scriptsTitle.isEnabled());
    EXPECT_EQ(pane.scriptsTitle.stringValue(), "");
    EXPECT_FALSE(pane.createNewScript.isEnabled());
    EXPECT_THAT(takeSent(), ElementsAre(settingChange("UseScripts", false)));
    EXPECT_THAT(files.log, IsEmpty());
}

TEST_F(ScriptStore, typingAUserKeyHidesTheVerdictAndReadiesTheCheck) {
    load();
    for (const std::string_view typed : {"key", ""}) {
        pane.pushValidationStatus.setHidden(false);
        pane.createNewScript.setEnabled(true);
        pane.pushUserName.userDidEdit(typed);
        EXPECT_TRUE(pane.pushValidationStatus.isHidden());
        EXPECT_EQ(pane.pushValidate.isEnabled(), !typed.empty());
        EXPECT_TRUE(pane.createNewScript.isEnabled());
    }
    TextField other;
    pane.scriptsTitleChanged(other);
    EXPECT_TRUE(pane.createNewScript.isEnabled());
}

} // namespace
} // namespace zarvil
