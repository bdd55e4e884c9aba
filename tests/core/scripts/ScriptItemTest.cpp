#include "ScriptsHarness.h"

#include <gmock/gmock.h>

namespace zarvil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptItem : public ScriptsHarness {
protected:
    void SetUp() override {
        put("a.zvscript", "echo a");
        put("b.zvscript", "echo b");
        loadWithScripts();
    }
};

TEST_F(ScriptItem, editingLaysTheFilledFieldsOverTheCardTheTitleOnTop) {
    const auto script = item(0);
    EXPECT_FALSE(script->editing());
    script->edit();
    EXPECT_TRUE(script->editing());
    ASSERT_EQ(script->view().subviews().size(), 2U);
    const auto& text = *script->view().subviews()[0];
    const auto& title = *script->view().subviews()[1];
    EXPECT_EQ(&text, script->eText());
    EXPECT_EQ(&title, script->eTitle());
    EXPECT_EQ(title.frame(), (Rect{15, 108, 490, 26}));
    EXPECT_EQ(title.fontSize(), 15);
    EXPECT_EQ(text.frame(), (Rect{20, 10, 558, 70}));
    EXPECT_EQ(text.fontSize(), 13);
    EXPECT_EQ(title.stringValue(), "a");
    EXPECT_EQ(text.stringValue(), "echo a");
    EXPECT_EQ(script->editCaption().accessibleName, "Save “a”");
    script->edit();
    EXPECT_EQ(script->editCaption().accessibleName, "Edit “a”");
    EXPECT_FALSE(script->editing());
    EXPECT_THAT(script->view().subviews(), IsEmpty());
    EXPECT_EQ(script->eTitle(), nullptr);
}

TEST_F(ScriptItem, savingReplacesTheOldFileByTheNewOne) {
    editByHand(*item(0), "c", "echo c");
    EXPECT_THAT(files.log,
                ElementsAre("replace " + pathOf("a.zvscript") + " by " + pathOf("c.zvscript")));
    EXPECT_EQ(files.files[pathOf("c.zvscript")], "echo c");
    EXPECT_THAT(titles(), ElementsAre("c", "b"));
    EXPECT_THAT(errors.presented, IsEmpty());
}

TEST_F(ScriptItem, anEmptiedFieldKeepsWhatTheScriptHad) {
    struct Case {
        std::string_view oldTitle, oldText, typedTitle, typedText, title, text;
    };
    const Case cases[] = {
        {"t", "x", "", "new", "t", "new"}, {"t", "x", "n", "", "n", "x"},
        {"t", "x", "", "", "t", "x"},      {"", "x", "", "y", "Zarvil Script", "y"},
        {"t", "", "t", "", "t", ""},       {"t", "x", "   ", "\n", "   ", "\n"},
    };
    for (const Case& given : cases) {
        const Record record =
            makeRecord({{"kZVScriptTitle", given.oldTitle}, {"kZVScriptText", given.oldText}});
        item(0)->setData(record);
        editByHand(*item(0), given.typedTitle, given.typedText);
        EXPECT_EQ(*record->contents().stringForKey("kZVScriptTitle"), given.title);
        EXPECT_EQ(*record->contents().stringForKey("kZVScriptText"), given.text);
        EXPECT_EQ(files.files[pathOf(std::string(given.title) + ".zvscript")], given.text);
    }
}

TEST_F(ScriptItem, aRecordWithoutEntriesGetsBothAndDeletesNothing) {
    const Record record = makeRecord({});
    item(0)->setData(record);
    item(0)->edit();
    EXPECT_EQ(item(0)->eTitle()->stringValue(), "");
    item(0)->edit();
    EXPECT_THAT(files.log, ElementsAre("write atomically " + pathOf("Zarvil Script.zvscript")));
    EXPECT_EQ(record->contents(),
              (Dictionary{{"kZVScriptTitle", "Zarvil Script"}, {"kZVScriptText", ""}}));
}

TEST_F(ScriptItem, anItemWithoutARecordTouchesNothing) {
    const auto script = std::make_shared<ZVScriptCollectionItem>(platform, pane.scriptProgress);
    editByHand(*script, "typed", "in vain");
    script->remove();
    EXPECT_THAT(files.log, IsEmpty());
    script->execute();
    EXPECT_EQ(errors.presented.at(0).description, "Can't execute empty script!");
}

TEST_F(ScriptItem, renamingOntoAnotherScriptReplacesItsFileAndKeepsBothInTheList) {
    editByHand(*item(0), "b", "echo a");
    EXPECT_EQ(files.files.size(), 1U);
    EXPECT_EQ(files.files[pathOf("b.zvscript")], "echo a");
    EXPECT_THAT(titles(), ElementsAre("b", "b"));
}

TEST_F(ScriptItem, aFailedDeletionIsShownAndTheSaveGoesOn) {
    files.files.erase(pathOf("a.zvscript"));
    put("a.txt", "echo a");
    editByHand(*item(0), "a", "echo new");
    EXPECT_EQ(errors.presented.size(), 1U);
    EXPECT_EQ(files.files[pathOf("a.zvscript")], "echo new");
    EXPECT_EQ(files.files[pathOf("a.txt")], "echo a");
}

TEST_F(ScriptItem, aFailedSaveKeepsTheFileAndIsNotedUntilOneWorks) {
    const auto note = [this] { return item(0)->noteProperty().get().caption; };
    files.failing = {pathOf("c.zvscript"), pathOf("d.zvscript")};
    for (const std::string_view title : {"c", "d"}) {
        editByHand(*item(0), title, "typed");
        EXPECT_EQ(listed(0, script::title), title);
        EXPECT_EQ(listed(0, script::text), "typed");
        EXPECT_EQ(note(), "Not saved");
        EXPECT_NE(item(0)->noteProperty().get().reason, "");
        EXPECT_EQ(files.files[pathOf("a.zvscript")], "echo a");
        EXPECT_FALSE(item(0)->editing());
    }
    files.failing = {pathOf("d.zvscript")};
    editByHand(*item(0), "c", "");
    EXPECT_EQ(note(), "");
    EXPECT_EQ(files.files, (std::map<std::string, std::string>{{pathOf("b.zvscript"), "echo b"},
                                                               {pathOf("c.zvscript"), "typed"}}));
    files.failing = {pathOf("x.zvscript")};
    editByHand(*item(0), "x", "lost");
    item(0)->remove();
    EXPECT_EQ(files.files.size(), 1U) << "the file of the former title";
    EXPECT_THAT(errors.presented, IsEmpty());
}

TEST_F(ScriptItem, whatWasTypedSurvivesAMissedPing) {
    files.failing = {pathOf("c.zvscript")};
    editByHand(*item(1), "c", "not saved");
    item(0)->edit();
    item(0)->eText()->userDidEdit("half a wor");
    time.advance(5);
    ASSERT_EQ(count(), 0U);
    put("a.zvscript", "changed meanwhile");
    put("aa.zvscript", "new");
    agentSends(message::pingAnswer);
    EXPECT_THAT(titles(), ElementsAre("a", "aa", "b"));
    EXPECT_TRUE(item(0)->editing());
    EXPECT_EQ(item(0)->eTitle()->stringValue(), "a");
    EXPECT_EQ(item(0)->eText()->stringValue(), "half a wor");
    EXPECT_FALSE(item(1)->editing());
    EXPECT_EQ(item(2)->eTitle()->stringValue(), "c");
    EXPECT_EQ(item(2)->eText()->stringValue(), "not saved");
    EXPECT_EQ(item(2)->noteProperty().get().caption, "Not saved");
    item(0)->edit();
    EXPECT_EQ(files.files[pathOf("a.zvscript")], "half a wor");
    files.failing.clear();
    item(2)->edit();
    EXPECT_EQ(files.files.count(pathOf("b.zvscript")), 0U);
    time.advance(5);
    agentSends(message::pingAnswer);
    EXPECT_FALSE(item(0)->editing()) << "saved drafts are gone";
}

TEST_F(ScriptItem, cancellingDropsWhatWasTypedAndTheDraftThatCameBack) {
    files.failing = {pathOf("c.zvscript")};
    editByHand(*item(1), "c", "not saved");
    time.advance(5);
    agentSends(message::pingAnswer);
    EXPECT_TRUE(item(1)->holdsTypedText());
    item(1)->cancelEditing();
    EXPECT_FALSE(item(1)->editing() || item(1)->holdsTypedText());
    EXPECT_EQ(item(1)->noteProperty().get().caption, "") << "the file is what is shown";
    EXPECT_FALSE(item(1)->draft());
    item(1)->cancelEditing();
    EXPECT_EQ(listed(1, script::text), "echo b");
    EXPECT_EQ(files.files[pathOf("b.zvscript")], "echo b");
}

TEST_F(ScriptItem, aDraftGoesToItsOwnScriptOrGetsACardOfItsOwn) {
    put("a.txt", "another");
    pane.unloadScripts();
    pane.loadScripts();
    ASSERT_THAT(titles(), ElementsAre("a", "a", "b"));
    item(0)->edit();
    item(0)->eText()->userDidEdit("draft");
    const std::string own = listed(0, script::text);
    pane.unloadScripts();
    const auto kept = std::exchange(files.files, {{pathOf("b.zvscript"), "echo b"}});
    pane.loadScripts();
    EXPECT_THAT(titles(), ElementsAre("b", "a"));
    EXPECT_EQ(item(1)->eText()->stringValue(), "draft");
    pane.unloadScripts();
    files.files = kept;
    pane.loadScripts();
    for (const std::size_t index : {0U, 1U, 2U})
        EXPECT_EQ(item(index)->editing(), listed(index, script::text) == own) << index;
}

/// A script is created where the rename of another failed, so that both were of one file.
class ScriptsOfOneFile : public ScriptItem {
protected:
    void SetUp() override {
        ScriptItem::SetUp();
        files.failing = {pathOf("x.zvscript")};
        editByHand(*item(0), "x", "first");
        createByHand("a");
        files.failing.clear();
    }
    const std::map<std::string, std::string> both{{pathOf("a.zvscript"), "second"},
                                                  {pathOf("b.zvscript"), "echo b"},
                                                  {pathOf("x.zvscript"), "first"}};
};

TEST_F(ScriptsOfOneFile, theLaterRenameLeavesTheFileToTheOther) {
    editByHand(*item(2), "a", "second");
    editByHand(*item(0), "x", "first");
    EXPECT_EQ(files.files, both);
}

TEST_F(ScriptsOfOneFile, bothTextsComeBackAfterAMissedPing) {
    item(2)->edit();
    item(2)->eText()->userDidEdit("second");
    time.advance(5);
    agentSends(message::pingAnswer);
    ASSERT_THAT(titles(), ElementsAre("a", "b", "x"));
    ASSERT_TRUE(item(0)->editing());
    item(0)->edit();
    item(2)->cancelEditing();
    EXPECT_EQ(item(2)->noteProperty().get().caption, "Not saved");
    item(2)->edit();
    item(2)->edit();
    EXPECT_EQ(files.files, both);
}

TEST_F(ScriptsOfOneFile, whatIsSavedIsNeitherReplacedNorRemovedByTheOther) {
    editByHand(*item(2), "a", "second");
    time.advance(5);
    agentSends(message::pingAnswer);
    ASSERT_THAT(titles(), ElementsAre("a", "b", "x"));
    EXPECT_FALSE(item(0)->editing());
    EXPECT_EQ(item(2)->eText()->stringValue(), "first");
    item(2)->remove();
    EXPECT_EQ(files.files[pathOf("a.zvscript")], "second");
    EXPECT_THAT(errors.presented, IsEmpty());
}

TEST_F(ScriptItem, aFailingScriptShowsTheRunnersNumberAndMessage) {
    scriptRunner.outcome = ScriptError{-2741, "Expected end of line."};
    item(0)->execute();
    EXPECT_EQ(item(0)->shownState().line, "Expected end of line.");
    EXPECT_EQ(item(0)->shownState().symbol, Symbol::Warning);
    item(0)->edit();
    EXPECT_EQ(item(0)->shownState().line, "");
    EXPECT_THAT(errors.presented,
                ElementsAre(Error{"NSCocoaErrorDomain", -2741, "Expected end of line."}));
    scriptRunner.outcome.reset();
    item(0)->execute();
    EXPECT_EQ(item(0)->shownState().line, "Ended without an error.");
    EXPECT_EQ(item(0)->shownState().symbol, Symbol::Tick);
}

TEST_F(ScriptItem, anEmptyScriptIsRefusedInTheUsersLanguage) {
    strings.translations["Can't execute empty script!"] = "Leeres Skript!";
    put("a.zvscript", "");
    pane.unloadScripts();
    pane.loadScripts();
    item(0)->execute();
    EXPECT_THAT(errors.presented, ElementsAre(Error{"NSCocoaErrorDomain", 1, "Leeres Skript!"}));
    EXPECT_THAT(scriptRunner.ran, IsEmpty());
}

TEST_F(ScriptItem, aScriptThatIsTooLargeIsToldOfWithItsSize) {
    put("a.zvscript", std::string(1U << 20U, 'x'));
    pane.unloadScripts();
    pane.loadScripts();
    EXPECT_THAT(item(0)->tooLargeText(), testing::HasSubstr("(1.0 MiB)"));
}

TEST_F(ScriptItem, removingDeletesTheFileAndLeavesTheOthersTheirItems) {
    const auto second = item(1);
    item(0)->userDidPressRemove();
    EXPECT_FALSE(files.files.contains(pathOf("a.zvscript")));
    second->userDidPressRemove(); // the second half of a double click
    EXPECT_THAT(titles(), ElementsAre("b"));
    EXPECT_EQ(item(0), second);
}

TEST_F(ScriptItem, removingAScriptWhoseFileIsGoneShowsTheErrorAndDropsItAnyway) {
    files.files.clear();
    item(0)->remove();
    EXPECT_EQ(errors.presented.size(), 1U);
    EXPECT_THAT(titles(), ElementsAre("b"));
}

TEST_F(ScriptItem, aRunBlocksThePaneAndWhatCameMeanwhileFollowsInOrder) {
    scriptRunner.lasting = true;
    item(0)->execute();
    pane.performAction("viewLog:", nullptr);
    const auto second = item(1);
    second->remove();
    second->execute();
    agentSends(Message(message::testFinished));
    pane.testing = true;
    time.advance(100);
    EXPECT_THAT(takeSentNames(), IsEmpty());
    EXPECT_EQ(count(), 2U);
    scriptRunner.end(std::nullopt);
    EXPECT_THAT(scriptRunner.ran, ElementsAre("echo a", "echo b"));
    EXPECT_EQ(count(), 1U);
    EXPECT_TRUE(pane.testing) << "the second script holds back what came after it";
    EXPECT_FALSE(item(0)->runningProperty().get());
    EXPECT_TRUE(second->runningProperty().get());
    scriptRunner.end(ScriptError{3, "b failed"});
    EXPECT_FALSE(second->runningProperty().get());
    EXPECT_EQ(second->shownState().line, "b failed");
    EXPECT_FALSE(pane.testing);
    EXPECT_THAT(takeSentNames(), ElementsAre("ZVViewLog", "ZVPing"));
    EXPECT_THAT(errors.presented, ElementsAre(Error{"NSCocoaErrorDomain", 3, "b failed"}));
    EXPECT_FALSE(pane.lostConnection);
}

TEST_F(ScriptItem, afterASecondAWindowTellsWhichScriptRunsAndCanStopIt) {
    strings.translations["The script “%1” is running."] = "„%1“ läuft.";
    scriptRunner.lasting = true;
    const ScriptProgress& progress = pane.scriptProgress;
    item(0)->execute();
    time.advance(0.9);
    EXPECT_TRUE(progress.runningProperty().get());
    EXPECT_FALSE(progress.windowShownProperty().get());
    time.advance(0.2);
    EXPECT_TRUE(progress.windowShownProperty().get());
    EXPECT_EQ(progress.textProperty().get(), "„a“ läuft.");
    for (int press = 0; press < 2; ++press)
        pane.scriptProgress.stop();
    EXPECT_THAT(scriptRunner.log, ElementsAre("stop"));
    scriptRunner.end(ScriptError{143, "Signal 15 (Terminated) ended the script."});
    EXPECT_FALSE(progress.windowShownProperty().get());
    EXPECT_FALSE(progress.runningProperty().get());
    EXPECT_THAT(errors.presented, IsEmpty()) << "the user knows why it ended";
    EXPECT_THAT(scriptRunner.log, ElementsAre("stop", "over"));
    EXPECT_EQ(item(0)->shownState().line, "") << "stopped is neither well nor failed";
}

} // namespace
} // namespace zarvil
