#pragma once

#include "platform/Workspace.h"

#include <QString>

namespace zarvil {

class MessageBus;

/// Applications as bundle folders, on the session bus and in the desktop's associations.
class QtWorkspace final : public Workspace {
public:
    /// `session` must outlive this.
    explicit QtWorkspace(MessageBus& session) : session_(session) {}

    /// Without a bundle at `path` asks the bus, and waits a second at most for its answer.
    [[nodiscard]] bool canLaunchApplication(std::string_view path) const override;
    /// Starts the executable of the bundle and does not wait for it; without a bundle at `path`
    /// asks the bus to start the application's identifier, and then true means only that the bus
    /// is there to be asked.
    bool launchApplication(std::string_view path) override;
    /// The well-known names on the session bus in the bus's order; none when the bus does not
    /// answer within about two seconds. Since it waits for an answer on the connection that
    /// carries the messages, those posted before have left this process when it returns.
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    [[nodiscard]] std::string mainBundleIdentifier() const override;
    bool openURL(std::string_view url) override;

private:
    bool activate(const QString& identifier);

    MessageBus& session_;
};

} // namespace zarvil
