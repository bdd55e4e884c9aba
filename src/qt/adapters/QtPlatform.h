#pragma once

#include "pane/Platform.h"
#include "platform/AlertQueue.h"
#include "protocol/NonCopyable.h"
#include "qt/adapters/PolkitAuthorization.h"
#include "qt/adapters/QtRunLoop.h"
#include "qt/adapters/QtStringTable.h"
#include "qt/adapters/QtUserDefaults.h"
#include "qt/adapters/QtWorkspace.h"

#include <memory>

namespace zarvil {

/// Owns every port that the pane is given: the adapters on Qt, and those that are handed to it.
/// Needs an application object.
class QtPlatform : NonCopyable {
public:
    /// The ports that need no Qt, or more of it than the adapters here.
    struct Parts {
        std::unique_ptr<MessageCenter> messages;
        std::unique_ptr<Clock> clock;
        std::unique_ptr<FileManager> files;
        std::unique_ptr<ScriptRunner> scripts;
        std::unique_ptr<ProcessControl> processes;
    };

    /// `root` is put before the absolute product paths. The bus must outlive this.
    QtPlatform(Parts parts, MessageBus& session, std::string root);
    ~QtPlatform() = default;

    [[nodiscard]] Platform& platform() { return platform_; }
    /// Where the pane's errors arrive.
    [[nodiscard]] AlertQueue& alerts() { return alerts_; }

private:
    HandlerQueue handlers_;
    Parts parts_;
    QtTimers timers_;
    QtWorkspace workspace_;
    QtUserDefaults defaults_;
    PolkitAuthorization authorization_;
    QtStringTable strings_;
    AlertQueue alerts_{handlers_, strings_};
    QtModalLoop modal_;
    Platform platform_;
};

} // namespace zarvil
