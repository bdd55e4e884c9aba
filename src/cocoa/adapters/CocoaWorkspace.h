#pragma once

#include "platform/Workspace.h"

namespace zarvil::cocoa {

/// The user's workspace. Applications without a bundle identifier are not listed; a host without
/// one is none that could be found among them.
class CocoaWorkspace final : public Workspace {
public:
    [[nodiscard]] bool canLaunchApplication(std::string_view path) const override;
    bool launchApplication(std::string_view path) override;
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    [[nodiscard]] std::string mainBundleIdentifier() const override;
    bool openURL(std::string_view url) override;
};

} // namespace zarvil::cocoa
