#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>

namespace zarvil {

/// Ends processes.
class ProcessControl : NonCopyable {
public:
    virtual ~ProcessControl() = default;

    /// Sends SIGKILL; false if the system refuses.
    virtual bool kill(std::int64_t processIdentifier) = 0;
    /// Ends this process; does not return outside tests.
    virtual void exit(int status) = 0;
};

} // namespace zarvil
