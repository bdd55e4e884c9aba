#include "protocol/ObserverList.h"

#include <algorithm>

namespace zarvil {

Subscription ObserverRegister::subscription(const std::shared_ptr<ObserverRegister>& list,
                                            const std::shared_ptr<Entry>& entry) {
    return Subscription([registered = std::weak_ptr(list), target = std::weak_ptr(entry)] {
        const auto entries = registered.lock();
        const auto cancelled = target.lock();
        if (!entries || !cancelled)
            return;
        cancelled->isCancelled = true;
        entries->anyIsCancelled_ = true;
        if (entries->notifications_ == 0)
            entries->removeCancelled();
    });
}

void ObserverRegister::removeCancelled() {
    anyIsCancelled_ = false;
    const auto gone = std::stable_partition(entries_.begin(), entries_.end(),
                                            [](const auto& entry) { return !entry->isCancelled; });
    // They end when the list is whole again, for what they own may cancel others.
    const std::vector<std::shared_ptr<Entry>> ending(gone, entries_.end());
    entries_.erase(gone, entries_.end());
}

} // namespace zarvil
