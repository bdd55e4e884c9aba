#include "PaneHarness.h"
#include "pane/Product.h"

namespace zarvil {
namespace {

using Links = PaneHarness;

TEST_F(Links, logAndUpdateCheckEachSendOneMessage) {
    loadWithAgent();
    pane.performAction("viewLog:", &pane.viewLogButton);
    pane.performAction("checkForUpdates:", &pane.checkForUpdatesNow);
    EXPECT_EQ(takeSent(),
              (std::vector<Message>{Message("ZVViewLog"), Message("ZVCheckForUpdates")}));
}

TEST_F(Links, theUpdateSwitchGovernsTheDelayFieldWhateverItWas) {
    loadWithAgent();
    for (const bool on : {true, false}) {
        for (const bool before : {true, false}) {
            pane.shutdownDelayText.setEnabled(before);
            pane.checkForUpdates.setState(on ? buttonState::on : buttonState::off);
            pane.performAction("setCheckForUpdatesAutomatically:", &pane.checkForUpdates);
            EXPECT_EQ(pane.shutdownDelayText.isEnabled(), !on);
            EXPECT_EQ(takeSent(),
                      std::vector<Message>{settingChange("SUEnableAutomaticChecks", on)});
        }
    }
}

TEST_F(Links, theLinkOpensItsOwnAddressOrTheMakersSite) {
    load();
    const std::string site(product::website);
    pane.openLink(&pane.link);
    pane.openLink(nullptr);
    TextAttributes attributes;
    attributes.link = "https://elsewhere.example/";
    AttributedString late("no link here, ", {});
    late.append("but here", attributes);
    pane.link.setAttributedTitle(late);
    pane.openLink(&pane.link);
    pane.link.setAttributedTitle({"all of it", attributes});
    pane.openLink(&pane.link);
    EXPECT_EQ(workspace.opened,
              (std::vector<std::string>{site, site, site, "https://elsewhere.example/"}));
}

TEST_F(Links, theAddressesAreWellFormed) {
    for (const auto action : {"support:", "fbLike:", "tweet:", "feedback:"})
        pane.performAction(action, nullptr);
    ASSERT_EQ(workspace.opened.size(), 4U);
    EXPECT_EQ(workspace.opened[0], product::supportPage);
    EXPECT_EQ(workspace.opened[1], product::socialPage);
    const std::string& post = workspace.opened[2];
    EXPECT_TRUE(post.starts_with(std::string(product::composePost) +
                                 "?button_hashtag=%23Zarvil&text=Zarvil%20shuts"))
        << post;
    EXPECT_NE(post.find("http%3A%2F%2Fwww.tessrow.example%2Fzarvil%20by%20%40tessrow"),
              std::string::npos)
        << post;
    EXPECT_EQ(post.find_first_of(" #@\""), std::string::npos);
    EXPECT_EQ(workspace.opened[3], "mailto:feedback@tessrow.example?SUBJECT=Feedback");
}

} // namespace
} // namespace zarvil
