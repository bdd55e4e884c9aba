#pragma once

#include "interface/Property.h"
#include "platform/Error.h"
#include "platform/HandlerQueue.h"
#include "platform/StringTable.h"

#include <deque>
#include <optional>
#include <string>

namespace zarvil {

/// The alerts of a pane, one at a time and in order, each after the handlers have ended and no
/// panel asks any more. An error equal to one that waits or is on screen is not added.
class AlertQueue final : public ErrorPresenter {
public:
    /// Both must outlive the queue.
    AlertQueue(HandlerQueue& handlers, const StringTable& strings);

    void presentError(const Error& error) override;

    /// What the alert on screen says; nothing while there is none.
    [[nodiscard]] const Property<std::optional<std::string>>& textProperty() const { return text_; }
    /// The caption of the alert's only button.
    [[nodiscard]] std::string buttonTitle() const;
    /// The user has read the alert on screen.
    void dismiss();

private:
    void showNext();

    HandlerQueue& handlers_;
    const StringTable& strings_;
    std::deque<Error> errors_; ///< the first one is on screen if `text_` has a value
    Property<std::optional<std::string>> text_;
    Subscription idle_;
};

} // namespace zarvil
