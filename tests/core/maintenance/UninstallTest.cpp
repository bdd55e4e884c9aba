#include "PaneHarness.h"

namespace zarvil {
namespace {

const std::string agent = "/Applications/Zarvil.app";
const std::string bundle = "/home/user/Library/PreferencePanes/Zarvil Preferences.prefPane";
const std::string settingsFile = "/home/user/Library/Preferences/com.Tessrow.Zarvil.plist";
const std::string script = "/home/user/Library/Zarvil Scripts/a.zvscript";
const std::string otherBundle = "/Library/PreferencePanes/Zarvil Preferences.prefPane";
const std::string host = "com.Tessrow.Preferences";

class Uninstall : public PaneHarness {
protected:
    Uninstall() {
        files.folders = {agent, bundle, otherBundle};
        files.files = {{settingsFile, ""}, {script, ""}};
        workspace.running = {{"com.example.Other", 11}, {host, 42}, {host, 43}};
    }
    const std::vector<std::string> removals{"remove " + agent, "remove " + bundle,
                                            "remove " + settingsFile};
};

TEST_F(Uninstall, removesThreeThingsInOrderAfterAskingTheAgentToQuitAndKillsTheFirstHost) {
    loadWithAgent();
    pane.unistall(nullptr);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVQuit"});
    EXPECT_EQ(files.log, removals);
    EXPECT_EQ(modal.log, std::vector<std::string>{"stop"});
    EXPECT_EQ(processes.log, std::vector<std::string>{"kill 42"});
    EXPECT_EQ(files.folders, std::set<std::string>{otherBundle});
    EXPECT_TRUE(files.files.contains(script));
}

TEST_F(Uninstall, goesOnWhenNothingCanBeRemovedAndEndsItselfWhenNoHostIsListedOrCanBeKilled) {
    files.failing = {agent, bundle};
    files.files.erase(settingsFile);
    processes.killing = [](std::int64_t) { return false; };
    pane.unistall(nullptr);
    EXPECT_EQ(files.log, removals);
    workspace.running.clear();
    pane.unistall(nullptr);
    EXPECT_TRUE(errors.presented.empty());
    EXPECT_EQ(processes.log, (std::vector<std::string>{"kill 42", "exit 0", "exit 0"}));
}

TEST_F(Uninstall, thePanelWaitsAndCancellingChangesNothing) {
    load();
    modal.duringModal = [this] {
        EXPECT_TRUE(pane.uninstallModal.isOnScreen());
        EXPECT_FALSE(pane.uninstallModal.isOpaque());
        EXPECT_EQ(pane.uninstallModal.backgroundColor(), color::clear);
        // Pressed again behind the panel, it asks no second time.
        pane.performAction("unistallAction:", &pane.uninstallButton);
        pane.performAction("uninstallSheetFinished:", nullptr);
    };
    for (int round = 0; round < 2; ++round) {
        pane.performAction("unistallAction:", &pane.uninstallButton);
        EXPECT_FALSE(pane.uninstallModal.isOnScreen());
    }
    EXPECT_EQ(modal.log,
              (std::vector<std::string>{"run", "stop", "returned", "run", "stop", "returned"}));
    EXPECT_TRUE(files.log.empty());
    EXPECT_TRUE(processes.log.empty());
    EXPECT_TRUE(takeSentNames().empty());
}

} // namespace
} // namespace zarvil
