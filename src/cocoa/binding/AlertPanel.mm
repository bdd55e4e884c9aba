#import "cocoa/binding/AlertPanel.h"

#import "cocoa/binding/Alert.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"

#include "platform/AlertQueue.h"

#include <memory>

namespace zarvil::cocoa {

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
                    runAlert(toCocoa(*text), toCocoa(queue->buttonTitle()));
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
