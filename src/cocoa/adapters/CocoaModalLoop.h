#pragma once

#import <AppKit/AppKit.h>

#import "cocoa/support/Ref.h"

#include "platform/ModalLoop.h"

#include <map>

namespace zarvil::cocoa {

/// The application's modal sessions. Timers and messages wait while one runs.
class CocoaModalLoop final : public ModalLoop {
public:
    /// The window that shows a panel from now on. A panel without a window is not waited for.
    void setWindow(const Panel& panel, NSWindow* window);

    void runModalForWindow(Panel& panel) override;
    void stopModal() override;

private:
    std::map<const Panel*, Ref<NSWindow>> windows_;
    int running_ = 0;
};

} // namespace zarvil::cocoa
