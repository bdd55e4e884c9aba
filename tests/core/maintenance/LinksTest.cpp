#include "PaneHarness.h"
#include "pane/Product.h"

namespace zarvil {
namespace {

using Links = PaneHarness;

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

} // namespace
} // namespace zarvil
