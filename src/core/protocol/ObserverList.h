#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Subscription.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zarvil {

/// What observer lists of all kinds have in common: who is registered, in order. Nothing leaves a
/// list while its observers are called.
class ObserverRegister {
public:
    struct Entry {
        bool isCancelled = false;
    };

    void add(std::shared_ptr<Entry> entry) { entries_.push_back(std::move(entry)); }
    [[nodiscard]] static Subscription subscription(const std::shared_ptr<ObserverRegister>& list,
                                                   const std::shared_ptr<Entry>& entry);
    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] const Entry& operator[](std::size_t place) const { return *entries_[place]; }

    /// Keeps the list, and what is in it, for as long as observers are called.
    class Notification : NonCopyable {
    public:
        explicit Notification(std::shared_ptr<ObserverRegister> list) : list_(std::move(list)) {
            ++list_->notifications_;
        }
        ~Notification() {
            if (--list_->notifications_ == 0 && list_->anyIsCancelled_)
                list_->removeCancelled();
        }
        [[nodiscard]] const ObserverRegister& list() const { return *list_; }

    private:
        std::shared_ptr<ObserverRegister> list_;
    };

private:
    void removeCancelled();

    std::vector<std::shared_ptr<Entry>> entries_;
    int notifications_ = 0; ///< under way
    bool anyIsCancelled_ = false;
};

/// Observers called in the order of their registration. An observer may add and cancel
/// registrations while it is called: one that is cancelled is not called any more, one that is
/// added is called from the next notification on. Not copyable: observers belong to one subject,
/// which may end while they are told.
template <typename... Arguments>
class ObserverList : NonCopyable {
public:
    using Observer = std::function<void(Arguments...)>;

    Subscription add(Observer observer) {
        if (!entries_)
            entries_ = std::make_shared<ObserverRegister>();
        const auto entry = std::make_shared<Entry>(std::move(observer));
        entries_->add(entry);
        return ObserverRegister::subscription(entries_, entry);
    }

    [[nodiscard]] bool empty() const { return !entries_ || entries_->size() == 0; }

    void notify(Arguments... arguments) const {
        if (empty())
            return;
        const ObserverRegister::Notification notification(entries_);
        const ObserverRegister& list = notification.list();
        for (std::size_t place = 0, last = list.size(); place < last; ++place)
            if (const auto& entry = static_cast<const Entry&>(list[place]); !entry.isCancelled)
                entry.observer(arguments...);
    }

private:
    struct Entry final : ObserverRegister::Entry {
        explicit Entry(Observer told) : observer(std::move(told)) {}
        Observer observer;
    };

    std::shared_ptr<ObserverRegister> entries_;
};

} // namespace zarvil
