#pragma once

#include "pane/Guidance.h"

#include <string>
#include <string_view>
#include <vector>

namespace zarvil {

struct HelpSection {
    std::string heading;
    std::string text;
};

/// What is said of a page of the pane to somebody who asks for help.
struct HelpPage {
    std::string title;
    std::vector<HelpSection> sections;
};

/// `scriptsFolder` is shown as it stands.
[[nodiscard]] HelpPage helpOf(Tab tab, std::string_view scriptsFolder, const StringTable& strings);

/// What a control does, for one whose row does not say it all.
struct ControlHelp {
    std::string_view outlet;
    std::string text;
};
[[nodiscard]] std::vector<ControlHelp> helpOfControls(const StringTable& strings);

} // namespace zarvil
