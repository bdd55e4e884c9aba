#include "platform/AlertQueue.h"

#include "interface/DisplayText.h"

#include <algorithm>

namespace zarvil {

AlertQueue::AlertQueue(HandlerQueue& handlers, const StringTable& strings)
    : handlers_(handlers), strings_(strings), idle_(handlers.observeIdle([this] { showNext(); })) {}

void AlertQueue::presentError(const Error& error) {
    if (std::ranges::find(errors_, error) != errors_.end())
        return;
    errors_.push_back(error);
    showNext();
}

std::string AlertQueue::buttonTitle() const { return strings_.localizedString("OK"); }

void AlertQueue::dismiss() {
    if (!text_.get())
        return;
    errors_.pop_front();
    text_.set(std::nullopt);
    showNext();
}

void AlertQueue::showNext() {
    if (text_.get() || errors_.empty() || !handlers_.isIdle())
        return;
    const std::string& description = errors_.front().description;
    text_.set(description.empty()
                  ? strings_.localizedString("The operation could not be completed.")
                  : showableText(description, longestShownMessage, LineBreaks::Kept));
}

} // namespace zarvil
