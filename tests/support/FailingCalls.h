#pragma once

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <string>
#include <sys/types.h>
#include <unistd.h>

/// Lets one call of the system fail, as the system really might: the n-th of those that are led
/// here. `zarvil_failing_calls` leads here what is linked statically with a target that links it.
namespace zarvil::failing {

/// Different errors of one call that a system has; which one is a number from zero on.
inline constexpr int errorsOfACall = 4;
using Errors = std::array<int, errorsOfACall>;

inline constexpr Errors writing{ENOSPC, EIO, EDQUOT, EINTR};
inline constexpr Errors reading{EIO, EINTR, EIO, EINTR};
inline constexpr Errors changing{EACCES, ENOENT, EROFS, ENOSPC};
inline constexpr Errors ending{EPERM, ESRCH, EPERM, ESRCH};
inline constexpr Errors starting{EAGAIN, ENOMEM, EMFILE, ENFILE};

inline std::atomic<int> callsLeft{0}; ///< the last of them fails
inline std::atomic<int> chosen{0};
inline std::atomic<pid_t> process{0}; ///< its children are spared
inline std::atomic<const char*> failed{nullptr};
inline std::atomic<int> failure{0};

/// Whether this call is the one, with `errno` set then.
inline bool fails(const char* call, const Errors& errors) {
    if (callsLeft <= 0 || process != ::getpid() || --callsLeft != 0)
        return false;
    failed = call;
    errno = failure = errors.at(static_cast<std::size_t>(chosen.load()));
    return true;
}

/// From now on the n-th call fails, counted from one, with one of its errors.
inline void arm(int call, int error) {
    failed = nullptr;
    chosen = error;
    process = ::getpid();
    callsLeft = call;
}

/// No call fails any more. The name and the error of the one that did; empty when none was reached.
inline std::string disarm() {
    callsLeft = 0;
    const char* call = failed;
    return call ? std::string(call) + ": " + std::strerror(failure) : std::string();
}

} // namespace zarvil::failing
