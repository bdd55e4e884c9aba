#include "bus/Inbox.h"

#include <QPointer>

#include <chrono>
#include <utility>

namespace zarvil {

namespace {

/// A fraction of what a frame of an animation may take.
constexpr std::chrono::milliseconds longestPart{5};

} // namespace

void Inbox::clear() {
    waiting_.clear();
    reader_.reset();
}

void Inbox::add(Arrival arrival) {
    waiting_.push_back(std::move(arrival));
    if (waiting_.size() == 1)
        handOn(QDeadlineTimer(longestPart));
}

void Inbox::goOn() {
    willGoOn_ = false;
    const QDeadlineTimer end(longestPart);
    if (reader_ && !reader_->isComplete()) {
        reader_->readUntil(end);
        goOnLater(); // also when it is complete: what is long to read is long to handle
    } else {
        handOn(end);
    }
}

void Inbox::handOn(const QDeadlineTimer& end) {
    const QPointer<Inbox> self(this);
    bool isInTime = true;
    while (self && !waiting_.empty() && isInTime) {
        if (readFirst(end))
            handOnFirst();
        isInTime = !end.hasExpired();
    }
    if (self && !waiting_.empty())
        goOnLater();
}

bool Inbox::readFirst(const QDeadlineTimer& end) {
    if (const auto* signal = std::get_if<QDBusMessage>(&waiting_.front()); signal && !reader_)
        reader_.emplace(*signal);
    return !reader_ || reader_->readUntil(end);
}

void Inbox::handOnFirst() {
    const Arrival first = std::move(waiting_.front());
    waiting_.pop_front();
    auto reader = std::exchange(reader_, std::nullopt);
    // Beforehand, for what is called may run an event loop.
    if (!waiting_.empty())
        goOnLater();
    if (const auto* signal = std::get_if<QDBusMessage>(&first)) {
        const Take take = take_; // a copy runs, for it may end this object
        take(*signal, reader->take());
    } else {
        std::get<1>(first)();
    }
}

void Inbox::goOnLater() {
    if (!std::exchange(willGoOn_, true))
        QMetaObject::invokeMethod(this, &Inbox::goOn, Qt::QueuedConnection);
}

} // namespace zarvil
