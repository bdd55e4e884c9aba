#include "posix/linux/ProcessGuard.h"

#include "posix/linux/ChildSetup.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zarvil::posix {

namespace {

constexpr int graceSteps = 100;
constexpr timespec graceStep{0, 20'000'000}; // nanoseconds; with the steps two seconds

void endProcessGroup(pid_t group) {
    ::kill(-group, SIGTERM);
    for (int step = 0; step < graceSteps && ::kill(-group, 0) == 0; ++step)
        ::nanosleep(&graceStep, nullptr);
    ::kill(-group, SIGKILL);
}

/// The guard's whole life; calls only what is safe in a copy of a process with threads. All
/// signals stay blocked: what ends a whole session must not end the guard before its work.
[[noreturn]] void guard(int channel, const char* file) {
    ::dup2(channel, STDIN_FILENO);
    closeFrom(STDIN_FILENO + 1);
    ::setsid();
    static_cast<void>(!::chdir("/"));
    pid_t group = 0;
    while (true) {
        pid_t told = 0;
        const ssize_t count = ::read(STDIN_FILENO, &told, sizeof told);
        if (count == sizeof told)
            group = told;
        else if (count >= 0 || errno != EINTR)
            break;
    }
    if (group > 0)
        endProcessGroup(group);
    ::unlink(file);
    ::_exit(0);
}

} // namespace

ProcessGuard::ProcessGuard(std::string file) : file_(std::move(file)) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        failure_ = errno;
        return;
    }
    const FileDescriptor guardEnd(ends[0]);
    channel_ = FileDescriptor(ends[1]);
    const AllSignalsBlocked blocked;
    guard_ = ::fork();
    if (guard_ == 0)
        guard(guardEnd.get(), file_.c_str());
    if (guard_ < 0)
        failure_ = errno;
}

ProcessGuard::~ProcessGuard() {
    if (guard_ <= 0)
        return;
    if (channel_.isOpen())
        ::kill(guard_, SIGKILL);
    while (::waitpid(guard_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void ProcessGuard::watch(pid_t leader) const {
    // A guard that was killed is no reason to end as well.
    static_cast<void>(!::send(channel_.get(), &leader, sizeof leader, MSG_NOSIGNAL));
}

void ProcessGuard::abandon() {
    channel_.close();
    guard_ = -1;
}

} // namespace zarvil::posix
