#pragma once

#include "bus/BusConnection.h"
#include "host/Appearance.h"
#include "host/CommandLine.h"
#include "host/HostWindow.h"
#include "host/SingleInstance.h"
#include "host/UnixSignals.h"

#include <memory>
#include <optional>
#include <vector>

namespace zarvil::host {

/// The preferences application once its command line is understood. Needs the application object.
class Host {
public:
    explicit Host(const CommandLine& commandLine);

    /// Runs until the window is closed; gives the exit code.
    int run();

private:
    [[nodiscard]] std::vector<BundleOutcome> bundles() const;
    int runWindow(const std::vector<BundleOutcome>& bundles);
    void makeWindow(const std::vector<BundleOutcome>& bundles);
    void serveOthers();
    [[nodiscard]] std::optional<BundleFailure> showAtStart();
    [[nodiscard]] std::optional<BundleFailure> show();
    void busChanged(BusState state);
    void yieldToFirst();

    CommandLine commandLine_;
    posix::SettingsFile settings_;
    Appearance appearance_;
    SingleInstance instance_;
    BusConnection session_;
    UnixSignals signals_;
    std::unique_ptr<HostWindow> window_;
    std::optional<BundleFailure> failure_; ///< of a window that was asked for over the bus
    bool decided_ = false;                 ///< whether this is the first instance; settled once
    bool yielding_ = false;                ///< it is not, and ends
    bool shown_ = false;                   ///< the window has been opened
};

} // namespace zarvil::host
