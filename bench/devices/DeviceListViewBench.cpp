#include "PaneOnFakes.h"
#include "protocol/Messages.h"
#include "qt/devices/DeviceListView.h"

#include <QAccessible>
#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace zarvil {
namespace {

using qt::DeviceListView;

/// Counts the paintings of a widget.
class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paintings += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paintings = 0;
};

Dictionary device(int number) {
    return {{"DeviceName", "Power device " + std::to_string(number)},
            {"DeviceVendor", "Vendor"},
            {"DeviceSerial", "SN-" + std::to_string(number)}};
}

Message connectedDevices(int count) {
    Array devices;
    for (int number = 0; number < count; ++number)
        devices.emplace_back(device(number));
    return {message::allConnectedDevices, Dictionary{{"devices", std::move(devices)}}};
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void scroll(DeviceListView& view) {
    constexpr int frames = 300;
    QElapsedTimer timer;
    double worst = 0;
    double total = 0;
    for (int frame = 0; frame < frames; ++frame) {
        timer.restart();
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / frames * frame);
        view.viewport()->repaint();
        const double took = milliseconds(timer);
        worst = std::max(worst, took);
        total += took;
    }
    std::printf("; scrolling %.2f ms a frame, worst %.2f ms", total / frames, worst);
}

/// Single messages, the window brought up to date after each.
void plugAndUnplug(Zarvil_Preferences& pane, int count) {
    constexpr int rounds = 200;
    const Message plugged(message::deviceConnected, device(count));
    const Message unplugged(message::deviceDisconnected, device(count));
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        pane.deviceConnected(&plugged);
        QApplication::processEvents();
        pane.deviceDisconnected(&unplugged);
        QApplication::processEvents();
    }
    std::printf("; plug or unplug %.2f ms\n", milliseconds(timer) / (2 * rounds));
}

void measure(int count) {
    PaneOnFakes fakes;
    fakes.pane.mainViewDidLoad();
    fakes.pane.appDidAnswer(nullptr);
    DeviceListView view;
    view.resize(320, 480);
    view.setModel(fakes.pane.connectedDevices);
    view.show();
    QApplication::processEvents();
    PaintCounter counter;
    view.viewport()->installEventFilter(&counter);
    const Message message = connectedDevices(count);

    QElapsedTimer timer;
    timer.start();
    fakes.pane.allConnectedDevices(&message);
    const double handled = milliseconds(timer);
    const auto isShown = [&] {
        return counter.paintings > 0 && view.indexAt({10, 20}).isValid() &&
               view.verticalScrollBar()->maximum() > 0;
    };
    while (!isShown())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%6d devices: handled in %.1f ms, painted after %.1f ms", count, handled,
                milliseconds(timer));

    scroll(view);
    plugAndUnplug(fakes.pane, count);
}

/// Processor time of this process: others on the machine do not count.
template <typename Work>
double seconds(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Both lists of a pane, shown.
struct Lists : PaneOnFakes {
    Lists() {
        pane.mainViewDidLoad();
        pane.appDidAnswer(nullptr);
        connected.setModel(pane.connectedDevices);
        saved.setModel(pane.selectedDevices);
        for (DeviceListView* view : {&connected, &saved}) {
            view->resize(320, 480);
            view->show();
        }
        QApplication::processEvents();
    }

    void plug(int count) {
        for (int number = 0; number < count; ++number)
            send(&Zarvil_Preferences::deviceConnected, device(number));
    }
    void unplug(const std::vector<int>& numbers) {
        for (const int number : numbers)
            send(&Zarvil_Preferences::deviceDisconnected, device(number));
    }
    void save(int count) {
        for (int number = 0; number < count; ++number)
            send(&Zarvil_Preferences::newSavedDevice, {{"device", device(number)}});
    }
    void tickAll() {
        QAbstractItemModel& rows = *connected.model();
        while (rows.rowCount() > 0)
            rows.setData(rows.index(rows.rowCount() / 2, 0), Qt::Checked, Qt::CheckStateRole);
    }
    /// Reads every row as an assistive program does, so that each has an interface.
    void read() {
        for (DeviceListView* view : {&connected, &saved}) {
            const auto* list = QAccessible::queryAccessibleInterface(view);
            for (int row = 0; row < list->childCount(); ++row)
                list->child(row)->text(QAccessible::Name);
        }
    }

    DeviceListView connected;
    DeviceListView saved;

private:
    void send(void (Zarvil_Preferences::*handler)(const Message*), Dictionary info) {
        const Message message("from the agent", std::move(info));
        (pane.*handler)(&message);
    }
};

std::vector<int> numbers(int count, bool shuffled) {
    std::vector<int> all(static_cast<std::size_t>(count));
    std::iota(all.begin(), all.end(), 0);
    if (shuffled)
        std::ranges::shuffle(all, std::mt19937(1)); // NOLINT: the same order in every run
    return all;
}

struct Phase {
    const char* name;
    bool plugged; ///< the devices are connected before
    void (*work)(Lists& lists, int count);
};

constexpr Phase phases[] = {
    {"connect", false, [](Lists& lists, int count) { lists.plug(count); }},
    {"save", true, [](Lists& lists, int count) { lists.save(count); }},
    {"tick", true, [](Lists& lists, int) { lists.tickAll(); }},
    {"unplug oldest first", true,
     [](Lists& lists, int count) { lists.unplug(numbers(count, false)); }},
    {"unplug at random", true, [](Lists& lists, int count) { lists.unplug(numbers(count, true)); }},
};

/// For one device.
double microseconds(const Phase& phase, int count, bool isRead) {
    Lists lists;
    if (phase.plugged)
        lists.plug(count);
    QApplication::processEvents();
    if (isRead)
        lists.read();
    const double all = seconds([&] {
        phase.work(lists, count);
        QApplication::processEvents();
    });
    return all / count * 1e6;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Long and short lists by turns, so that both meet the same disturbances.
void compare(bool isRead, int many) {
    constexpr int turns = 9;
    constexpr int shortOnesATurn = 3;
    const int few = many / 10;
    std::printf("%s\n", isRead ? "Every row read by an assistive program before:" : "Not read:");
    for (const Phase& phase : phases) {
        std::vector<double> longOnes;
        std::vector<double> shortOnes;
        for (int turn = 0; turn < turns; ++turn) {
            longOnes.push_back(microseconds(phase, many, isRead));
            for (int one = 0; one < shortOnesATurn; ++one)
                shortOnes.push_back(microseconds(phase, few, isRead));
        }
        const double large = median(longOnes);
        const double small = median(shortOnes);
        std::printf("  %-20s %6.2f us a device at %d, %6.2f us at %d, ratio %.2f\n", phase.name,
                    small, few, large, many, large / small);
    }
}

} // namespace
} // namespace zarvil

/// Usage: zarvil-bench-device-list [COUNT]. With a display (QT_QPA_PLATFORM=xcb), an accessibility
/// bus whose `org.a11y.Status` has `IsEnabled` and `ScreenReaderEnabled` set, and
/// QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1, changes are announced on the way; else nobody listens.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    constexpr int usual = 10'000;
    const int many = argc > 1 ? std::max(10, std::atoi(argv[1])) : usual;
    for (const int count : {many / 100, many / 10, many})
        zarvil::measure(std::max(10, count));
    // The bus answers in its own time.
    QDeadlineTimer patience(qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON") ? 5000
                                                                                          : 0);
    while (!QAccessible::isActive() && !patience.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 100);
    std::printf("Changes are %s\n", QAccessible::isActive() ? "announced" : "not announced");
    for (const bool isRead : {false, true})
        zarvil::compare(isRead, many);
}
