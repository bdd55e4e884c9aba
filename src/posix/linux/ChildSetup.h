#pragma once

#include "protocol/NonCopyable.h"

#include <csignal>

/// What a fork needs before the new process becomes what it is for.
namespace zarvil::posix {

/// Closes every descriptor from this one on. Safe in the child of a process with threads.
void closeFrom(int first);

/// Gives every signal its default effect and unblocks all: a program inherits what its parent
/// ignores or blocks. Safe in the child of a process with threads.
void restoreSignals();

/// Blocks all signals of this thread while it lives: no handler of this process may run in the
/// child of a fork meanwhile.
class AllSignalsBlocked : NonCopyable {
public:
    AllSignalsBlocked();
    /// Keeps `errno`.
    ~AllSignalsBlocked();

private:
    sigset_t before_{};
};

} // namespace zarvil::posix
