#include "posix/linux/ScriptProcess.h"

#include "posix/Utf8.h"
#include "posix/linux/ChildSetup.h"
#include "posix/linux/ProcessGuard.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zarvil::posix {

namespace {

constexpr int launchDescriptor = 3;    // in the child, until the program starts
constexpr std::size_t portion = 65536; // bytes read at a time; a pipe's usual capacity
constexpr int pollInterval = 20;       // milliseconds, where the kernel cannot announce an end

/// Descriptors stay clear of those that the child lays out anew. On failure the result is closed
/// and `errno` says why, also where none was open to begin with.
FileDescriptor aboveLayout(const FileDescriptor& file) {
    if (!file.isOpen())
        return {};
    return FileDescriptor(::fcntl(file.get(), F_DUPFD_CLOEXEC, launchDescriptor + 1));
}

/// Both ends or none: a write into a pipe that nobody can read would end this process. On failure
/// `errno` says why.
bool openPipe(FileDescriptor& readEnd, FileDescriptor& writeEnd) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    const FileDescriptor readable(ends[0]);
    const FileDescriptor writable(ends[1]);
    FileDescriptor input = aboveLayout(readable);
    if (!input.isOpen())
        return false;
    FileDescriptor output = aboveLayout(writable);
    if (!output.isOpen())
        return false;
    readEnd = std::move(input);
    writeEnd = std::move(output);
    return true;
}

/// What the child needs, prepared before the fork: afterwards it may only call what is safe in a
/// copy of a process with threads.
struct Launch {
    std::vector<char*> arguments;
    const char* home;
    int null;
    int errors;
    int report;
};

/// A descriptor that becomes readable when the process ends; -1 on an old kernel.
int openProcess(pid_t process) {
    // By number: this C library's header does not declare its function for C++.
    return static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
}

[[noreturn]] void becomeProgram(const Launch& launch) {
    const bool laidOut = ::dup2(launch.null, STDIN_FILENO) >= 0 &&
                         ::dup2(launch.null, STDOUT_FILENO) >= 0 &&
                         ::dup2(launch.errors, STDERR_FILENO) >= 0 &&
                         ::dup3(launch.report, launchDescriptor, O_CLOEXEC) >= 0;
    int failure = errno;
    if (laidOut) {
        closeFrom(launchDescriptor + 1);
        // A missing home is no reason not to run.
        if (launch.home)
            static_cast<void>(!::chdir(launch.home));
        restoreSignals();
        ::execv(launch.arguments.front(), launch.arguments.data());
        failure = errno;
    }
    const int report = laidOut ? launchDescriptor : launch.report;
    static_cast<void>(!::write(report, &failure, sizeof failure));
    ::_exit(127);
}

} // namespace

void LastLine::add(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        const std::size_t room = longestLine - current_.size();
        current_ += bytes.substr(0, std::min(end, room));
        if (end == bytes.size())
            return;
        endLine();
        bytes.remove_prefix(end + 1);
    }
}

void LastLine::endLine() {
    if (current_.find_first_not_of(" \t\r\v\f") != std::string::npos)
        last_ = current_;
    current_.clear();
}

std::string LastLine::text() const {
    const std::string unfinished = printableLine(current_);
    return unfinished.empty() ? printableLine(last_) : unfinished;
}

RunControl::RunControl() {
    if (!openPipe(wishes_, wishing_))
        failure_ = errno;
}

void RunControl::send(Wish wish) const {
    static_cast<void>(!::write(wishing_.get(), &wish, sizeof wish));
}

RunControl::Wish RunControl::wish() const {
    Wish wish = Wish::None;
    static_cast<void>(!::read(wishes_.get(), &wish, sizeof wish));
    return wish;
}

ProcessOutcome ScriptProcess::run(const std::vector<std::string>& arguments, ProcessGuard& guard,
                                  const RunControl& control) {
    ScriptProcess process(guard, control);
    if (!process.openChannels() || !process.start(arguments))
        return {ProcessOutcome::Kind::NotStarted, errno, {}};
    const int failure = process.launchFailure();
    ProcessOutcome outcome = process.wait();
    if (failure != 0)
        return {ProcessOutcome::Kind::NotStarted, failure, {}};
    return outcome;
}

bool ScriptProcess::openChannels() {
    null_ = aboveLayout(FileDescriptor(::open("/dev/null", O_RDWR | O_CLOEXEC)));
    return null_.isOpen() && openPipe(errorsIn_, errorsOut_) && openPipe(launchIn_, launchOut_) &&
           ::fcntl(errorsIn_.get(), F_SETFL, O_NONBLOCK) == 0;
}

bool ScriptProcess::start(const std::vector<std::string>& arguments) {
    Launch launch{{}, std::getenv("HOME"), null_.get(), errorsOut_.get(), launchOut_.get()};
    for (const std::string& argument : arguments)
        launch.arguments.push_back(const_cast<char*>(argument.c_str()));
    launch.arguments.push_back(nullptr);

    {
        const AllSignalsBlocked blocked;
        process_ = ::fork();
        if (process_ == 0) {
            // Told here, before the program starts: this process may be killed at any moment.
            ::setsid();
            guard_.watch(::getpid());
            becomeProgram(launch);
        }
    }
    const int failure = errno;
    errorsOut_.close();
    launchOut_.close();
    errno = failure;
    return process_ > 0;
}

/// The channel closes when the program starts; before that it may bring an error number.
int ScriptProcess::launchFailure() const {
    int failure = 0;
    ssize_t count = 0;
    do
        count = ::read(launchIn_.get(), &failure, sizeof failure);
    while (count < 0 && errno == EINTR);
    return count == sizeof failure ? failure : 0;
}

ProcessOutcome ScriptProcess::wait() {
    const FileDescriptor end(openProcess(process_));
    std::array<pollfd, 3> watched{{{errorsIn_.get(), POLLIN, 0},
                                   {end.get(), POLLIN, 0},
                                   {control_.wishes().get(), POLLIN, 0}}};
    int status = 0;
    pid_t ended = 0;
    while ((ended = ::waitpid(process_, &status, WNOHANG)) == 0) {
        if (::poll(watched.data(), watched.size(), end.isOpen() ? -1 : pollInterval) <= 0)
            continue;
        if ((watched[0].revents & POLLIN) != 0)
            drain(portion);
        else if (watched[0].revents != 0)
            watched[0].fd = -1; // closed by all of its writers
        if (watched[2].revents != 0 && !heed(control_.wish()))
            return {};
    }
    // What the program itself wrote last is in the pipe; others may go on writing for ever.
    const int capacity = ::fcntl(errorsIn_.get(), F_GETPIPE_SZ);
    drain(capacity > 0 ? static_cast<std::size_t>(capacity) : portion);
    std::string line = lastLine_.text();
    if (ended == process_ && WIFEXITED(status))
        return {ProcessOutcome::Kind::Exited, WEXITSTATUS(status), std::move(line)};
    if (ended == process_ && WIFSIGNALED(status))
        return {ProcessOutcome::Kind::Signalled, WTERMSIG(status), std::move(line)};
    return {ProcessOutcome::Kind::Unknown, 0, std::move(line)};
}

bool ScriptProcess::heed(RunControl::Wish wish) {
    if (wish == RunControl::Wish::Abandon)
        guard_.abandon();
    else if (wish == RunControl::Wish::Stop)
        guard_.endGroup();
    return wish != RunControl::Wish::Abandon;
}

void ScriptProcess::drain(std::size_t limit) {
    std::array<char, portion> buffer;
    std::size_t drained = 0;
    while (drained < limit) {
        const ssize_t count =
            ::read(errorsIn_.get(), buffer.data(), std::min(buffer.size(), limit - drained));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        lastLine_.add({buffer.data(), static_cast<std::size_t>(count)});
        drained += static_cast<std::size_t>(count);
    }
}

} // namespace zarvil::posix
