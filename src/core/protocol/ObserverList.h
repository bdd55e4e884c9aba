#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Subscription.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace zarvil {

/// Observers called in the order of their registration. An observer may add and cancel
/// registrations while it is called: one that is cancelled is not called any more, one that is
/// added is called from the next notification on. Not copyable: observers belong to one subject.
template <typename... Arguments>
class ObserverList : NonCopyable {
public:
    using Observer = std::function<void(Arguments...)>;

    Subscription add(Observer observer) {
        if (!entries_)
            entries_ = std::make_shared<Entries>();
        auto entry = std::make_shared<Observer>(std::move(observer));
        entries_->push_back(entry);
        // Named before they are captured: Objective-C++ front ends include this header, and GNU's
        // compiler has no captures with an initializer there.
        const std::weak_ptr<Entries> list = entries_;
        const std::weak_ptr<Observer> target = entry;
        return Subscription([list, target] {
            const auto observers = list.lock();
            const auto registered = target.lock();
            if (!observers || !registered)
                return;
            std::erase(*observers, registered);
            *registered = nullptr;
        });
    }

    void notify(Arguments... arguments) const {
        if (!entries_ || entries_->empty())
            return;
        const Entries snapshot = *entries_;
        for (const auto& entry : snapshot) {
            // A copy, so that an observer that cancels itself does not destroy what is running.
            if (const Observer observer = *entry)
                observer(arguments...);
        }
    }

private:
    using Entries = std::vector<std::shared_ptr<Observer>>;
    std::shared_ptr<Entries> entries_;
};

} // namespace zarvil
