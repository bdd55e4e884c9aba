#import "cocoa/binding/AlertPanel.h"

#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#include "platform/AlertQueue.h"

#import <AppKit/AppKit.h>

#include <memory>

namespace zarvil::cocoa {

namespace {

void showAlert(AlertQueue& alerts) {
    const auto& text = alerts.textProperty().get();
    if (!text)
        return;
    const auto alert = Ref<NSAlert>::adopt([[NSAlert alloc] init]);
    [alert.get() setAlertStyle:NSWarningAlertStyle];
    [alert.get() setMessageText:toCocoa(*text)];
    [alert.get() addButtonWithTitle:toCocoa(alerts.buttonTitle())];
    [alert.get() runModal];
}

} // namespace

Subscription presentAlerts(AlertQueue& alerts) {
    AlertQueue* queue = &alerts;
    const auto alive = std::make_shared<bool>(true);
    auto shown = std::make_shared<Subscription>(
        alerts.textProperty().observe([=](const std::optional<std::string>& text, Transition) {
            // Its modal loop is none that a handler may wait in.
            if (text)
                callOnMainThread([=] {
                    if (!*alive)
                        return;
                    showAlert(*queue);
                    if (*alive)
                        queue->dismiss();
                });
        }));
    return Subscription([=]() mutable {
        *alive = false;
        shown.reset();
    });
}

} // namespace zarvil::cocoa
