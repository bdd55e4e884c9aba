// Starts the preferences application and the bare window by turns and compares the time to their
// first mapped window and until they are quiet, their memory and, where callgrind is installed,
// their instructions; then watches an idle pane whose agent answers. Runs on a private display and
// bus, which the script `startup` sets up.
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
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Command = std::vector<std::string>;

constexpr int rounds = 15;
constexpr auto settleTime = std::chrono::milliseconds(700);
constexpr int pingPeriod = 3; // seconds
constexpr int idlePings = 7;

/// A program that is measured does not do what it should; the benchmark ends.
[[noreturn]] void giveUp(const std::string& program, const char* why) {
    throw std::runtime_error(program + ' ' + why);
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
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        constexpr int patience = 5'000; // milliseconds
        kill(pid_, SIGTERM);
        if (!endsWithin(patience))
            kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        close(ended_);
    }

    [[nodiscard]] pid_t identifier() const { return pid_; }
    [[nodiscard]] std::string folder() const { return "/proc/" + std::to_string(pid_); }
    [[nodiscard]] const std::string& name() const { return name_; }
    /// Readable once the program has ended.
    [[nodiscard]] int endDescriptor() const { return ended_; }
    [[nodiscard]] bool endsWithin(int milliseconds) const {
        pollfd end{ended_, POLLIN, 0};
        return poll(&end, 1, milliseconds) > 0;
    }
    /// Lets time pass. A program that ends meanwhile ends the benchmark.
    void runFor(std::chrono::milliseconds time) const {
        if (endsWithin(static_cast<int>(time.count())))
            giveUp(name_, "ended while it was measured");
    }
    /// Processor time of all its threads so far.
    [[nodiscard]] std::chrono::nanoseconds processorTime() const {
        clockid_t clock = 0;
        timespec time{};
        if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &time) != 0)
            giveUp(name_, "tells no processor time");
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    }
    /// When the program last did something before it did nothing for this long.
    Clock::time_point waitUntilQuiet(std::chrono::milliseconds stillness) const {
        auto used = processorTime();
        auto last = Clock::now();
        while (Clock::now() - last < stillness) {
            runFor(std::chrono::milliseconds(1));
            if (const auto now = processorTime(); now != used) {
                used = now;
                last = Clock::now();
            }
        }
        return last;
    }

private:
    std::string name_;
    pid_t pid_;
    int ended_ = -1;
};

/// Waits for top-level windows to be mapped.
class Display {
public:
    Display()
        : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect),
          typeProperty_(atom("_NET_WM_WINDOW_TYPE")),
          dialog_(atom("_NET_WM_WINDOW_TYPE_DIALOG")) {
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_.get(), screen->root, XCB_CW_EVENT_MASK, &events);
        xcb_flush(connection_.get());
    }

    void forgetEvents() { takeMapping(); }

    /// A program that ends, shows nothing or has something to complain of ends the benchmark.
    void waitForMappedWindow(const Process& process) {
        constexpr int limit = 30'000; // milliseconds
        std::array<pollfd, 2> awaited{{{xcb_get_file_descriptor(connection_.get()), POLLIN, 0},
                                       {process.endDescriptor(), POLLIN, 0}}};
        std::optional<xcb_window_t> window;
        while (!(window = takeMapping())) {
            if (poll(awaited.data(), awaited.size(), limit) == 0)
                giveUp(process.name(), "shows no window");
            if (awaited[1].revents != 0)
                giveUp(process.name(), "ended before it showed a window");
            if (xcb_connection_has_error(connection_.get()) != 0)
                giveUp(process.name(), "has lost its display");
        }
        if (isDialog(*window))
            giveUp(process.name(), "shows a message in place of its window");
    }

private:
    template <typename Reply>
    using Owned = std::unique_ptr<Reply, decltype(&free)>;

    /// The window that was mapped last among the events that are there.
    std::optional<xcb_window_t> takeMapping() {
        std::optional<xcb_window_t> mapped;
        while (const auto event =
                   Owned<xcb_generic_event_t>(xcb_poll_for_event(connection_.get()), free))
            if ((event->response_type & 0x7FU) == XCB_MAP_NOTIFY)
                mapped = reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
        return mapped;
    }

    [[nodiscard]] xcb_atom_t atom(const std::string& name) const {
        const auto asked = xcb_intern_atom(connection_.get(), 0,
                                           static_cast<std::uint16_t>(name.size()), name.c_str());
        const Owned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection_.get(), asked, nullptr), free);
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    [[nodiscard]] bool isDialog(xcb_window_t window) const {
        constexpr std::uint32_t most = 16;
        const auto asked =
            xcb_get_property(connection_.get(), 0, window, typeProperty_, XCB_ATOM_ATOM, 0, most);
        const Owned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), asked, nullptr), free);
        if (!reply)
            return false;
        const auto* types = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
        return std::find(types, types + reply->value_len, dialog_) != types + reply->value_len;
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_atom_t typeProperty_;
    xcb_atom_t dialog_;
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
    std::vector<double> mapped;       ///< milliseconds
    std::vector<double> quiet;        ///< milliseconds
    std::vector<double> proportional; ///< KiB
    std::vector<double> own;          ///< KiB
};

void measure(Display& display, const Command& command, Figures& figures) {
    constexpr std::chrono::milliseconds stillness{300};
    display.forgetEvents();
    const auto start = Clock::now();
    const auto since = [start](Clock::time_point end) {
        return std::chrono::duration<double, std::milli>(end - start).count();
    };
    const Process process(command);
    display.waitForMappedWindow(process);
    figures.mapped.push_back(since(Clock::now()));
    figures.quiet.push_back(since(process.waitUntilQuiet(stillness)));
    process.runFor(settleTime);
    const std::string memory = process.folder() + "/smaps_rollup";
    figures.proportional.push_back(static_cast<double>(numberAfter(memory, "Pss:")));
    figures.own.push_back(static_cast<double>(numberAfter(memory, "Private_Clean:") +
                                              numberAfter(memory, "Private_Dirty:")));
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Millions of instructions until the program is quiet, or 0 where callgrind is not installed.
double instructions(Display& display, const Command& command) {
    if (std::system("command -v valgrind callgrind_control >/dev/null") != 0)
        return 0;
    constexpr std::chrono::milliseconds stillness{1500};
    const auto folder = std::filesystem::temp_directory_path();
    const std::string file = folder / ("callgrind." + std::to_string(getpid()));
    Command counted{"valgrind", "--quiet", "--tool=callgrind", "--callgrind-out-file=" + file};
    counted.insert(counted.end(), command.begin(), command.end());
    display.forgetEvents();
    long total = 0;
    {
        const Process process(counted);
        display.waitForMappedWindow(process);
        process.waitUntilQuiet(stillness);
        const std::string dump =
            "callgrind_control --dump " + std::to_string(process.identifier()) + " >/dev/null 2>&1";
        if (std::system(dump.c_str()) == 0)
            total = numberAfter(file + ".1", "totals:");
    }
    for (const std::string& left : {file, file + ".1"})
        std::filesystem::remove(left);
    return static_cast<double>(total) / 1e6;
}

/// Voluntary context switches of each thread that lives now, by thread identifier.
std::map<std::string, long> contextSwitches(const Process& process) {
    std::map<std::string, long> switches;
    for (const auto& task : std::filesystem::directory_iterator(process.folder() + "/task"))
        switches[task.path().filename()] =
            numberAfter(task.path() / "status", "voluntary_ctxt_switches:");
    return switches;
}

void watchIdle(Display& display, const Command& command) {
    display.forgetEvents();
    const Process process(command);
    display.waitForMappedWindow(process);
    process.runFor(std::chrono::seconds(2 * pingPeriod));
    auto before = contextSwitches(process);
    const auto used = process.processorTime();
    process.runFor(std::chrono::seconds(pingPeriod * idlePings));
    long switches = 0;
    for (const auto& [thread, count] : contextSwitches(process))
        switches += count - before[thread];
    const std::chrono::duration<double, std::milli> busy = process.processorTime() - used;
    std::printf("idle, agent answering        pane %8.1f voluntary context switches a ping "
                "(allowed 4), %.1f ms of processor time in %d s (allowed 5)\n",
                static_cast<double>(switches) / idlePings, busy.count(), pingPeriod * idlePings);
}

void compare(const char* what, const char* unit, double pane, double bare, double allowed) {
    std::printf("%-28s pane %8.1f %s   bare window %8.1f %s   ratio %.3f (allowed %.2f)\n", what,
                pane, unit, bare, unit, pane / bare, allowed);
}

void compareStarts(Display& display, const Command& pane, const Command& bare) {
    Figures ours;
    Figures floor;
    measure(display, bare, floor);
    measure(display, pane, ours);
    floor = ours = {}; // what was on the disk is in memory now
    for (int round = 0; round < rounds; ++round) {
        measure(display, bare, floor);
        measure(display, pane, ours);
    }
    std::printf("Medians of %d starts each, by turns, with warm caches:\n", rounds);
    compare("time to first mapped window", "ms", median(ours.mapped), median(floor.mapped), 1.05);
    compare("time until quiet", "ms", median(ours.quiet), median(floor.quiet), 1.1);
    compare("proportional memory", "KiB", median(ours.proportional), median(floor.proportional),
            1.08);
    compare("private memory", "KiB", median(ours.own), median(floor.own), 1.05);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s BARE-WINDOW PREFERENCES [ARGUMENT...]\n", argv[0]);
        return 2;
    }
    const Command bare{argv[1]};
    const Command pane(argv + 2, argv + argc);
    try {
        Display display;
        compareStarts(display, pane, bare);
        if (const double counted = instructions(display, bare); counted > 0) {
            compare("instructions until quiet", "M", instructions(display, pane), counted, 1.05);
            std::printf("  of a bare window that shows the words of the pane's first page in their "
                        "fonts: %.1f M\n",
                        instructions(display, {bare.front(), "words"}));
        } else
            std::printf("instructions until quiet     not counted: callgrind is not installed\n");
        watchIdle(display, pane);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
