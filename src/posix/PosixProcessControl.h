#pragma once

#include "platform/ProcessControl.h"

namespace zarvil::posix {

/// Ends processes by their identifier. Identifiers that the system reads as a whole group of
/// processes (0 and below) end nothing.
class PosixProcessControl final : public ProcessControl {
public:
    bool kill(std::int64_t processIdentifier) override;
    void exit(int status) override;
};

} // namespace zarvil::posix
