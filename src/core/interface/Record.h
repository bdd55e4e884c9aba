#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/ObserverList.h"
#include "protocol/Value.h"

#include <memory>
#include <vector>

namespace zarvil {

/// Is told of a record's edits for as long as it watches it. It must not end before.
class RecordWatcher : NonCopyable {
public:
    virtual void recordWasEdited() = 0;

protected:
    ~RecordWatcher() = default;

private:
    friend class MutableRecord;
    RecordWatcher* nextWatcher_ = nullptr;
};

/// A dictionary that a list and the item that shows it share by reference, and that tells when it
/// was edited. Has identity; copying its contents makes an independent record.
class MutableRecord : NonCopyable {
public:
    using Fetch = std::function<Value()>;

    explicit MutableRecord(Dictionary contents) : contents_(std::move(contents)) {}
    /// One more entry is fetched when it is first asked for; nobody can tell it from the others.
    MutableRecord(Dictionary contents, std::string lateKey, Fetch fetch)
        : contents_(std::move(contents)), lateKey_(std::move(lateKey)), fetch_(std::move(fetch)) {
        // Its place is kept, so that fetching moves none of the others.
        contents_.setObject(lateKey_, Value(""));
    }

    /// Complete.
    [[nodiscard]] const Dictionary& contents() const {
        fetchLateEntry();
        return contents_;
    }
    /// One entry of the contents, without a need for the others; null unless it is a string. Valid
    /// until the record is edited.
    [[nodiscard]] const std::string* stringForKey(std::string_view key) const {
        if (key == lateKey_)
            fetchLateEntry();
        return contents_.stringForKey(key);
    }
    void fetchLateEntry() const {
        if (const auto fetch = std::exchange(fetch_, nullptr))
            contents_.setObject(lateKey_, fetch());
    }
    void setObject(std::string_view key, Value value) {
        if (key == lateKey_)
            fetch_ = nullptr;
        contents_.setObject(key, std::move(value));
        tellOfEdit();
    }
    /// Called after each edit; not replayed.
    Subscription observeEdits(std::function<void()> observer) {
        return edited_.add(std::move(observer));
    }
    /// The same for whoever watches thousands of records: before the observers, and at no cost.
    void addWatcher(RecordWatcher& watcher) { *placeOf(nullptr) = &watcher; }
    void removeWatcher(RecordWatcher& watcher) { *placeOf(&watcher) = watcher.nextWatcher_; }

private:
    /// The link that leads to the watcher; for none, the last one.
    RecordWatcher** placeOf(const RecordWatcher* watcher) {
        RecordWatcher** place = &firstWatcher_;
        while (*place && *place != watcher)
            place = &(*place)->nextWatcher_;
        return place;
    }
    void tellOfEdit() {
        std::vector<RecordWatcher*> told;
        for (RecordWatcher* watcher = firstWatcher_; watcher; watcher = watcher->nextWatcher_)
            told.push_back(watcher);
        // One may end another in the course of this.
        for (RecordWatcher* watcher : told)
            if (*placeOf(watcher))
                watcher->recordWasEdited();
        edited_.notify();
    }

    /// Fetching changes nothing that a reader of the record can see.
    mutable Dictionary contents_;
    std::string lateKey_;
    mutable Fetch fetch_;
    RecordWatcher* firstWatcher_ = nullptr;
    ObserverList<> edited_;
};

using Record = std::shared_ptr<MutableRecord>;

[[nodiscard]] inline Record makeRecord(Dictionary contents) {
    return std::make_shared<MutableRecord>(std::move(contents));
}

} // namespace zarvil
