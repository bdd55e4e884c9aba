#include "PaneHarness.h"

namespace zarvil {
namespace {

using Presence = PaneHarness;

TEST_F(Presence, anAgentThatStopsAnsweringGreysThePaneWithinFiveSeconds) {
    loadWithAgent();
    ASSERT_TRUE(pane.launchAtLogin.isEnabled());
    time.advance(5);
    EXPECT_FALSE(pane.launchAtLogin.isEnabled());
    EXPECT_FALSE(pane.togglePowerButton.isEnabled());
    EXPECT_FALSE(pane.notLaunchedDesc.isHidden());
    EXPECT_EQ(pane.launchButton.title(), "Launch Zarvil");
}

} // namespace
} // namespace zarvil
