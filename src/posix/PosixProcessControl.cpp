#include "posix/PosixProcessControl.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <sys/types.h>

namespace zarvil::posix {

bool PosixProcessControl::kill(std::int64_t processIdentifier) {
    return processIdentifier > 0 && processIdentifier <= std::numeric_limits<pid_t>::max() &&
           ::kill(static_cast<pid_t>(processIdentifier), SIGKILL) == 0;
}

void PosixProcessControl::exit(int status) {
    // Event loops and threads are under way: the statics that they use must stay.
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace zarvil::posix
