#include "interface/Record.h"

#include <algorithm>

namespace zarvil {

const std::string* MutableRecord::stringForKey(std::string_view key) const {
    if (late_ && key == late_->key())
        fetchLateEntry();
    return contents_.stringForKey(key);
}

void MutableRecord::fetchLateEntry() const {
    if (const auto late = std::exchange(late_, nullptr))
        contents_.setObject(late->key(), late->fetch(*contents_.stringForKey(late->key())));
}

void MutableRecord::setObject(std::string_view key, Value value) {
    if (late_ && key == late_->key())
        late_ = nullptr;
    contents_.setObject(key, std::move(value));
    const std::vector<RecordWatcher*> told = watchers();
    for (auto watcher = told.begin(); watcher != told.end(); ++watcher) {
        const bool isTold = std::find(told.begin(), watcher, *watcher) != watcher;
        // One may end another in the course of this.
        if (!isTold && std::ranges::count(watchers(), *watcher) > 0)
            (*watcher)->recordWasEdited(*this);
    }
    if (audience_)
        audience_->observers.notify();
}

Subscription MutableRecord::observeEdits(std::function<void()> observer) {
    return audience().observers.add(std::move(observer));
}

void MutableRecord::addWatcher(RecordWatcher& watcher) {
    if (firstWatcher_)
        audience().watchers.push_back(&watcher);
    else
        firstWatcher_ = &watcher;
}

void MutableRecord::removeWatcher(const RecordWatcher& watcher) {
    if (!audience_ || audience_->watchers.empty()) {
        firstWatcher_ = nullptr;
        return;
    }
    std::vector<RecordWatcher*>& others = audience_->watchers;
    const auto left =
        firstWatcher_ == &watcher ? others.begin() : std::ranges::find(others, &watcher);
    if (firstWatcher_ == &watcher)
        firstWatcher_ = *left;
    others.erase(left);
}

MutableRecord::Audience& MutableRecord::audience() {
    if (!audience_)
        audience_ = std::make_unique<Audience>();
    return *audience_;
}

std::vector<RecordWatcher*> MutableRecord::watchers() const {
    std::vector<RecordWatcher*> all;
    if (firstWatcher_)
        all.push_back(firstWatcher_);
    if (audience_)
        all.insert(all.end(), audience_->watchers.begin(), audience_->watchers.end());
    return all;
}

} // namespace zarvil
