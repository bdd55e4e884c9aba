#include "protocol/InProcessMessageCenter.h"

namespace zarvil {

void InProcessMessageCenter::post(Message message) { pending_.push_back(std::move(message)); }

Subscription InProcessMessageCenter::addObserver(std::string_view name, Handler handler) {
    return observers_.try_emplace(std::string(name)).first->second.add(std::move(handler));
}

Subscription InProcessMessageCenter::observeLink(const LinkObserver& observer) {
    observer(LinkEvent::Up);
    return links_.add(observer);
}

void InProcessMessageCenter::deliver() {
    if (delivering_)
        return;
    delivering_ = true;
    while (!pending_.empty()) {
        const Message message = std::move(pending_.front());
        pending_.pop_front();
        const auto found = observers_.find(message.name);
        if (found != observers_.end())
            found->second.notify(message);
    }
    delivering_ = false;
}

} // namespace zarvil
