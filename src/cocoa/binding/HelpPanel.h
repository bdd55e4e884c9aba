#pragma once

#import "cocoa/support/Ref.h"

#import <AppKit/AppKit.h>

#include "protocol/Subscription.h"

namespace zarvil {
class Guidance;
class StringTable;
} // namespace zarvil

namespace zarvil::cocoa {

/// A window beside the pane that explains the page which the pane shows.
class HelpPanel {
public:
    /// Both must outlive the panel.
    HelpPanel(Guidance& guidance, const StringTable& strings);
    HelpPanel(const HelpPanel&) = delete;
    HelpPanel& operator=(const HelpPanel&) = delete;
    ~HelpPanel();

    void present();

private:
    void makePanel();
    void showPage();

    Guidance& guidance_;
    const StringTable& strings_;
    Ref<NSPanel> panel_; ///< nil until it is asked for
    Ref<NSTextView> text_;
    Subscription page_;
};

} // namespace zarvil::cocoa
