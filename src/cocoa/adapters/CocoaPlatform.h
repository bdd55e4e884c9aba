#pragma once

#import "cocoa/adapters/CocoaAuthorization.h"
#import "cocoa/adapters/CocoaModalLoop.h"
#import "cocoa/adapters/CocoaPorts.h"
#import "cocoa/adapters/CocoaTimers.h"
#import "cocoa/adapters/CocoaWorkspace.h"
#import "cocoa/messages/DistributedMessageCenter.h"

#include "pane/Platform.h"
#include "platform/AlertQueue.h"
#include "posix/PosixClock.h"
#include "posix/PosixFileManager.h"
#include "posix/PosixProcessControl.h"

#include <memory>
#include <string>

namespace zarvil::cocoa {

/// Owns every port that the pane is given.
class CocoaPlatform {
public:
    /// `root` is put before the absolute product paths.
    explicit CocoaPlatform(std::string root);
    CocoaPlatform(const CocoaPlatform&) = delete;
    CocoaPlatform& operator=(const CocoaPlatform&) = delete;
    ~CocoaPlatform() = default;

    [[nodiscard]] Platform& platform() { return platform_; }
    /// Where the pane's errors arrive.
    [[nodiscard]] AlertQueue& alerts() { return alerts_; }
    [[nodiscard]] CocoaAuthorization& authorization() { return authorization_; }
    [[nodiscard]] CocoaModalLoop& modal() { return modal_; }

private:
    HandlerQueue handlers_;
    DistributedMessageCenter messages_;
    CocoaTimers timers_;
    posix::PosixClock clock_;
    CocoaWorkspace workspace_;
    CocoaUserDefaults defaults_;
    CocoaStringTable strings_;
    posix::PosixFileManager files_{strings_};
    AlertQueue alerts_{handlers_, strings_};
    std::unique_ptr<ScriptRunner> scripts_;
    CocoaAuthorization authorization_{timers_, strings_};
    CocoaModalLoop modal_;
    posix::PosixProcessControl processes_;
    Platform platform_;
};

} // namespace zarvil::cocoa
