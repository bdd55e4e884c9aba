#pragma once

#include <functional>
#include <utility>

namespace zarvil {

/// Keeps an observer registered for as long as it lives. May outlive what it observes.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    Subscription(Subscription&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            cancel();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { cancel(); }

    /// Ends the registration now; a second call does nothing.
    void cancel() {
        if (auto run = std::exchange(cancel_, nullptr))
            run();
    }

private:
    std::function<void()> cancel_;
};

} // namespace zarvil
