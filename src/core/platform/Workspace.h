#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zarvil {

struct RunningApplication {
    std::string bundleIdentifier;
    std::int64_t processIdentifier = 0;
};

/// Applications of the user's desktop session and the addresses they open.
class Workspace : NonCopyable {
public:
    virtual ~Workspace() = default;

    /// Whether there is anything at a path that `launchApplication` could start.
    [[nodiscard]] virtual bool canLaunchApplication(std::string_view path) const = 0;
    /// Starts the application bundle at a path, or raises it; false when it cannot be started.
    virtual bool launchApplication(std::string_view path) = 0;
    /// In the order in which the session lists them.
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() const = 0;
    /// Bundle identifier of the application that this process is.
    [[nodiscard]] virtual std::string mainBundleIdentifier() const = 0;
    /// Opens an address in the user's default application for it; false when there is none.
    virtual bool openURL(std::string_view url) = 0;
};

} // namespace zarvil
