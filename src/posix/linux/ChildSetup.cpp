#include "posix/linux/ChildSetup.h"

#include <cerrno>
#include <unistd.h>

namespace zarvil::posix {

void closeFrom(int first) {
    if (::close_range(static_cast<unsigned>(first), ~0U, 0) == 0)
        return;
    const long limit = ::sysconf(_SC_OPEN_MAX);
    for (int descriptor = first; descriptor < limit; ++descriptor)
        ::close(descriptor);
}

void restoreSignals() {
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        ::sigaction(signal, &standard, nullptr);
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

AllSignalsBlocked::AllSignalsBlocked() {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before_);
}

AllSignalsBlocked::~AllSignalsBlocked() {
    const int kept = errno;
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    errno = kept;
}

} // namespace zarvil::posix
