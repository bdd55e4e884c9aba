#pragma once

#include <functional>
#include <memory>

namespace zarvil::cocoa {

/// Tells when the system's distributed center has forgotten this process's observers, so that they
/// must be removed and added once more. The call comes on the main thread, from the run loop.
class ObserverRevival {
public:
    explicit ObserverRevival(std::function<void()> addAgain);
    ObserverRevival(const ObserverRevival&) = delete;
    ObserverRevival& operator=(const ObserverRevival&) = delete;
    ~ObserverRevival();

private:
    struct Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace zarvil::cocoa
