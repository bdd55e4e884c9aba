#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/ObserverList.h"
#include "protocol/Value.h"

#include <memory>
#include <vector>

namespace zarvil {

class MutableRecord;

/// Is told of a record's edits for as long as it watches it. It must not end before.
class RecordWatcher : NonCopyable {
public:
    virtual void recordWasEdited(const MutableRecord& record) = 0;

protected:
    ~RecordWatcher() = default;
};

/// Where records have an entry from that is fetched when it is first asked for; many share one.
class LateEntry : NonCopyable {
public:
    virtual ~LateEntry() = default;

    [[nodiscard]] virtual std::string_view key() const = 0;
    /// Of the record that has this note in the entry's place.
    [[nodiscard]] virtual Value fetch(const std::string& note) const = 0;
};

/// A dictionary that a list and the item that shows it share by reference, and that tells when it
/// was edited. Has identity; copying its contents makes an independent record. There are thousands,
/// so what only few have stands apart.
class MutableRecord : NonCopyable {
public:
    explicit MutableRecord(Dictionary contents) : contents_(std::move(contents)) {}
    /// The contents have a note, a string, in the late entry's place. Nobody can tell that entry
    /// from the others.
    MutableRecord(Dictionary contents, std::shared_ptr<const LateEntry> late)
        : contents_(std::move(contents)), late_(std::move(late)) {}

    /// Complete.
    [[nodiscard]] const Dictionary& contents() const {
        if (late_)
            fetchLateEntry();
        return contents_;
    }
    /// One entry of the contents, without a need for the others; null unless it is a string. Valid
    /// until the record is edited.
    [[nodiscard]] const std::string* stringForKey(std::string_view key) const;
    void fetchLateEntry() const;
    void setObject(std::string_view key, Value value);

    /// Called after each edit; not replayed.
    Subscription observeEdits(std::function<void()> observer);
    /// The same for whoever watches thousands of records: before the observers, and at next to no
    /// cost for the first. Who watches twice is told once, until both have ended.
    void addWatcher(RecordWatcher& watcher);
    void removeWatcher(const RecordWatcher& watcher);

private:
    struct Audience {
        std::vector<RecordWatcher*> watchers; ///< behind the first
        ObserverList<> observers;
    };
    [[nodiscard]] Audience& audience();
    [[nodiscard]] std::vector<RecordWatcher*> watchers() const;

    /// Fetching changes nothing that a reader of the record can see.
    mutable Dictionary contents_;
    mutable std::shared_ptr<const LateEntry> late_;
    RecordWatcher* firstWatcher_ = nullptr;
    std::unique_ptr<Audience> audience_;
};

using Record = std::shared_ptr<MutableRecord>;

[[nodiscard]] inline Record makeRecord(Dictionary contents) {
    return std::make_shared<MutableRecord>(std::move(contents));
}

} // namespace zarvil
