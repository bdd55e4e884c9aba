#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/ObserverList.h"
#include "protocol/Value.h"

#include <memory>

namespace zarvil {

/// A dictionary that a list and the item that shows it share by reference, and that tells when it
/// was edited. Has identity; copying its contents makes an independent record.
class MutableRecord : NonCopyable {
public:
    explicit MutableRecord(Dictionary contents) : contents_(std::move(contents)) {}

    [[nodiscard]] const Dictionary& contents() const { return contents_; }
    void setObject(std::string_view key, Value value) {
        contents_.setObject(key, std::move(value));
        edited_.notify();
    }
    /// Called after each edit; not replayed.
    Subscription observeEdits(std::function<void()> observer) {
        return edited_.add(std::move(observer));
    }

private:
    Dictionary contents_;
    ObserverList<> edited_;
};

using Record = std::shared_ptr<MutableRecord>;

[[nodiscard]] inline Record makeRecord(Dictionary contents) {
    return std::make_shared<MutableRecord>(std::move(contents));
}

} // namespace zarvil
