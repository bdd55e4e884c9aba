// Starts the preferences application and the bare window by turns and compares the time to their
// first mapped window and their proportional memory; then counts the context switches of an idle
// pane whose agent answers. Runs on a private display and bus, which the script `startup` sets up.
#include <xcb/xcb.h>

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Command = std::vector<std::string>;

constexpr int rounds = 15;
constexpr auto settleTime = std::chrono::seconds(2);
constexpr int pingPeriod = 3; // seconds
constexpr int idlePings = 10;

[[noreturn]] void giveUp(const std::string& program, const char* why) {
    std::fprintf(stderr, "bench: %s %s\n", program.c_str(), why);
    std::exit(EXIT_FAILURE);
}

/// A started program, ended when this goes.
class Process {
public:
    explicit Process(const Command& command) : name_(command.front()), pid_(fork()) {
        if (pid_ != 0) {
            ended_ = static_cast<int>(syscall(SYS_pidfd_open, pid_, 0));
            return;
        }
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        kill(pid_, SIGTERM);
        waitpid(pid_, nullptr, 0);
        close(ended_);
    }

    [[nodiscard]] std::string folder() const { return "/proc/" + std::to_string(pid_); }
    [[nodiscard]] const std::string& name() const { return name_; }
    /// Readable once the program has ended.
    [[nodiscard]] int endDescriptor() const { return ended_; }
    /// Lets time pass. A program that ends meanwhile ends the benchmark.
    void runFor(std::chrono::milliseconds time) const {
        pollfd end{ended_, POLLIN, 0};
        if (poll(&end, 1, static_cast<int>(time.count())) > 0)
            giveUp(name_, "ended while it was measured");
    }

private:
    std::string name_;
    pid_t pid_;
    int ended_ = -1;
};

/// Waits for top-level windows to be mapped.
class Display {
public:
    Display() : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect) {
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_.get(), screen->root, XCB_CW_EVENT_MASK, &events);
        xcb_flush(connection_.get());
    }

    void forgetEvents() { takeMapping(); }

    /// A program that ends or shows nothing ends the benchmark.
    void waitForMappedWindow(const Process& process) {
        constexpr int limit = 30'000; // milliseconds
        std::array<pollfd, 2> awaited{{{xcb_get_file_descriptor(connection_.get()), POLLIN, 0},
                                       {process.endDescriptor(), POLLIN, 0}}};
        while (!takeMapping()) {
            if (poll(awaited.data(), awaited.size(), limit) == 0)
                giveUp(process.name(), "shows no window");
            if (awaited[1].revents != 0)
                giveUp(process.name(), "ended before it showed a window");
            if (xcb_connection_has_error(connection_.get()) != 0)
                giveUp(process.name(), "has lost its display");
        }
    }

private:
    /// Whether a window was mapped among the events that are there.
    bool takeMapping() {
        bool mapped = false;
        while (const auto event = std::unique_ptr<xcb_generic_event_t, decltype(&free)>(
                   xcb_poll_for_event(connection_.get()), free))
            mapped = mapped || (event->response_type & 0x7FU) == XCB_MAP_NOTIFY;
        return mapped;
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
};

long numberAfter(const std::string& file, const std::string& label) {
    std::ifstream input(file);
    for (std::string word; input >> word;) {
        if (word == label) {
            long number = 0;
            input >> number;
            return number;
        }
    }
    return 0;
}

struct Figures {
    std::vector<double> milliseconds;
    std::vector<double> kibibytes;
};

void measure(Display& display, const Command& command, Figures& figures) {
    display.forgetEvents();
    const auto start = Clock::now();
    const Process process(command);
    display.waitForMappedWindow(process);
    figures.milliseconds.push_back(
        std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    process.runFor(settleTime);
    figures.kibibytes.push_back(
        static_cast<double>(numberAfter(process.folder() + "/smaps_rollup", "Pss:")));
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Context switches of each thread that lives now, by thread identifier.
std::map<std::string, long> contextSwitches(const Process& process) {
    std::map<std::string, long> switches;
    for (const auto& task : std::filesystem::directory_iterator(process.folder() + "/task")) {
        const std::string status = task.path() / "status";
        switches[task.path().filename()] = numberAfter(status, "voluntary_ctxt_switches:") +
                                           numberAfter(status, "nonvoluntary_ctxt_switches:");
    }
    return switches;
}

double switchesPerPing(Display& display, const Command& command) {
    display.forgetEvents();
    const Process process(command);
    display.waitForMappedWindow(process);
    process.runFor(settleTime * 3);
    auto before = contextSwitches(process);
    process.runFor(std::chrono::seconds(pingPeriod * idlePings));
    long switches = 0;
    for (const auto& [thread, count] : contextSwitches(process))
        switches += count - before[thread];
    return static_cast<double>(switches) / idlePings;
}

void compare(const char* what, const char* unit, double pane, double bare, double allowed) {
    std::printf("%-28s pane %8.1f %s   bare window %8.1f %s   ratio %.2f (allowed %.2f)\n", what,
                pane, unit, bare, unit, pane / bare, allowed);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s BARE-WINDOW PREFERENCES [ARGUMENT...]\n", argv[0]);
        return 2;
    }
    const Command bareCommand{argv[1]};
    const Command paneCommand(argv + 2, argv + argc);
    Display display;
    Figures warmUp;
    measure(display, bareCommand, warmUp);
    measure(display, paneCommand, warmUp);
    Figures bare;
    Figures pane;
    for (int round = 0; round < rounds; ++round) {
        measure(display, bareCommand, bare);
        measure(display, paneCommand, pane);
    }
    std::printf("Medians of %d starts each, by turns, with warm caches:\n", rounds);
    compare("time to first mapped window", "ms", median(pane.milliseconds),
            median(bare.milliseconds), 1.3);
    compare("proportional memory", "KiB", median(pane.kibibytes), median(bare.kibibytes), 1.25);
    std::printf("context switches a ping      pane %8.1f      over %d pings with the agent "
                "answering (allowed 6)\n",
                switchesPerPing(display, paneCommand), idlePings);
}
