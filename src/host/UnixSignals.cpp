#include "host/UnixSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace zarvil::host {

namespace {

constexpr std::array endSignals{SIGTERM, SIGINT, SIGHUP};

/// Read end and write end. A handler may reach nothing but a global, and call hardly more than
/// `write`.
std::array<int, 2> pipeEnds{-1, -1};

void writeToPipe(int number) {
    const int kept = errno; // of what was interrupted
    const auto byte = static_cast<char>(number);
    // A full pipe already says it.
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
    errno = kept;
}

void doNothing(int /*number*/) {}

void drainPipe() {
    std::array<char, 64> bytes{};
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
    }
}

} // namespace

UnixSignals::UnixSignals() {
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals keep their default effect, which ends the process too
    notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        drainPipe();
        emit endRequested();
    });
    struct sigaction action {};
    action.sa_flags = SA_RESTART;
    // A write beyond the file-size limit shall fail with an error that can be shown. Not ignored:
    // programs inherit what their parent ignores.
    action.sa_handler = doNothing;
    sigaction(SIGXFSZ, &action, nullptr);
    action.sa_handler = writeToPipe;
    for (const int number : endSignals)
        sigaction(number, &action, nullptr);
}

UnixSignals::~UnixSignals() {
    if (!notifier_)
        return;
    for (const int number : endSignals)
        std::signal(number, SIG_DFL);
    notifier_.reset();
    for (int& end : pipeEnds) {
        close(end);
        end = -1;
    }
}

} // namespace zarvil::host
