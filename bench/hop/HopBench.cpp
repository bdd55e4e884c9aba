#include "PaneOnFakes.h"
#include "bus/BusConnection.h"
#include "bus/BusDaemon.h"
#include "bus/DBusMessageCenter.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"
#include "qt/binding/OutletBinder.h"
#include "qt/devices/DeviceListView.h"
#include "qt/pane/PaneView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QEvent>
#include <QTabWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

/// What the pane adds to a message's way over the bus, out and in. The raw hop beside it takes the
/// same message from connection to connection and paints the same box of the same layout, with
/// nothing but Qt: no controller, models or bindings. And how long the window stands still while
/// thousands of devices come. To be run on a display and a session bus of its own.
namespace {

using namespace zarvil;
using BenchClock = std::chrono::steady_clock;

constexpr int rounds = 3000;
constexpr int warmUp = 200;

template <typename Condition>
void turnUntil(Condition condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double microsecondsSince(BenchClock::time_point start) {
    return std::chrono::duration<double, std::micro>(BenchClock::now() - start).count();
}

double percentile(std::vector<double> values, double part) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

QDBusConnection connection(const char* name) {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QString::fromLatin1(name));
}

QDBusMessage signal(std::string_view name, const QVariantMap& info) {
    auto message = QDBusMessage::createSignal(bus::path, bus::interface, QString::fromUtf8(name));
    message << info;
    return message;
}

/// Once the bus has answered it knows what the connection listens for.
void settle(const QDBusConnection& bus) { bus.call(busCall("GetId")); }

/// Hears one message on a plain connection.
class Receiver final : public QObject {
    Q_OBJECT

public:
    Receiver(QDBusConnection bus, std::string_view name) {
        bus.connect(QString(), bus::path, bus::interface, QString::fromUtf8(name), this,
                    SLOT(hear(QDBusMessage)));
        settle(bus);
    }
    int heard = 0;
    QAbstractButton* shows = nullptr;

private Q_SLOTS:
    void hear(const QDBusMessage& message) {
        ++heard;
        if (shows)
            shows->setChecked(
                qdbus_cast<QVariantMap>(message.arguments().at(0)).value("UseForce").toBool());
    }
};

/// Notes that a widget is painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool painted = false;

private:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// The pane's layout on a real bus, and on fake ports for the rest. Its timers stand still.
struct PaneOnBus : PaneOnFakes {
    PaneOnBus() {
        turnUntil([this] { return connection.state() == BusState::Connected; });
        view.makeAllParts();
        qt::bindGuidance(real, view, bindings);
        qt::bindOutlets(real, view, bindings);
        real.mainViewDidLoad();
        real.willSelect();
        settle(*connection.connection());
        view.findChild<QTabWidget*>("tabView")->setCurrentIndex(1);
        view.show();
    }
    ~PaneOnBus() { bindings.clear(); }

    BusConnection connection{BusOptions::sessionBus()};
    DBusMessageCenter center{connection, bus::agentName};
    Platform onBus{handlers, center,       time,          time,    workspace, disk,  defaults,
                   errors,   scriptRunner, authorization, strings, {},        modal, processes,
                   "",       "."};
    Zarvil_Preferences real{onBus};
    qt::PaneView view;
    qt::Subscriptions bindings;
};

/// Runs both ways by turns, since a machine is not equally fast all the time.
template <typename Raw, typename Own>
void compare(const char* what, Raw raw, Own own) {
    std::vector<double> rawTimes;
    std::vector<double> ownTimes;
    for (int round = 0; round < warmUp + rounds; ++round) {
        auto start = BenchClock::now();
        raw(round);
        const double rawTime = microsecondsSince(start);
        start = BenchClock::now();
        own(round);
        const double ownTime = microsecondsSince(start);
        if (round < warmUp)
            continue;
        rawTimes.push_back(rawTime);
        ownTimes.push_back(ownTime);
    }
    const double median = percentile(rawTimes, 0.5);
    std::printf("%-32s raw median %5.0f us, p99 %5.0f us   pane median %5.0f us, p99 %5.0f us   "
                "own layer %+.1f %%\n",
                what, median, percentile(rawTimes, 0.99), percentile(ownTimes, 0.5),
                percentile(ownTimes, 0.99), 100 * (percentile(ownTimes, 0.5) - median) / median);
}

/// The layout as it is for the pane, with nothing behind it.
struct BareLayout {
    BareLayout() {
        view.findChild<QTabWidget*>("tabView")->setCurrentIndex(1);
        view.move(view.width() + 50, 0);
        view.show();
    }
    QAbstractButton& box(const char* name) { return *view.findChild<QAbstractButton*>(name); }

    qt::PaneView view;
};

void settingToSignal(PaneOnBus& pane, BareLayout& bare, QDBusConnection raw,
                     const QDBusConnection& listening) {
    QAbstractButton& box = bare.box("launchAtLogin");
    Receiver receiver(listening, message::prefsChanged);
    const auto await = [&receiver](int before) {
        turnUntil([&receiver, before] { return receiver.heard > before; });
    };
    compare(
        "setting changed -> signal",
        [&](int round) {
            const int before = receiver.heard;
            box.setChecked(round % 2 == 0);
            raw.send(signal(message::prefsChanged,
                            {{"prefKey", "LaunchAtLogin"}, {"prefObj", round % 2 == 0}}));
            await(before);
        },
        [&](int /*round*/) {
            const int before = receiver.heard;
            pane.real.launchAtLogin.performClick();
            await(before);
        });
}

void messageToPaint(PaneOnBus& pane, BareLayout& bare, QDBusConnection agent,
                    const QDBusConnection& listening) {
    QAbstractButton& box = bare.box("forceQuit");
    // A name that the pane does not listen for.
    constexpr std::string_view another = "Raw";
    Receiver receiver(listening, another);
    receiver.shows = &box;
    PaintWatch rawPaint(box);
    PaintWatch ownPaint(*pane.view.findChild<QAbstractButton*>("forceQuit"));
    const auto await = [](PaintWatch& watch) {
        watch.painted = false;
        turnUntil([&watch] { return watch.painted; });
    };
    compare(
        "agent message -> painted control",
        [&](int round) {
            agent.send(signal(another, {{"UseForce", round % 2 == 0}}));
            await(rawPaint);
        },
        [&](int round) {
            agent.send(signal(message::savedPrefs, {{"UseForce", round % 2 == 0}}));
            await(ownPaint);
        });
}

/// In microseconds, the longest time that the window stands still until then.
template <typename Condition>
double longestTurnUntil(Condition condition) {
    constexpr std::chrono::microseconds wait(100);
    double longest = 0;
    while (!condition()) {
        const auto start = BenchClock::now();
        QCoreApplication::processEvents();
        longest = std::max(longest, microsecondsSince(start));
        // The others need the processor too.
        std::this_thread::sleep_for(wait);
    }
    return longest;
}

QDBusMessage deviceList(std::string_view name, int first, int count) {
    QVariantList devices;
    for (int number = first; number < first + count; ++number) {
        const QString text = QString::number(number);
        devices.append(QVariantMap{{"DeviceName", "Power device " + text},
                                   {"DeviceVendor", "Vendor"},
                                   {"DeviceSerial", "SN-" + text}});
    }
    return signal(name, {{"devices", devices}});
}

/// Both lists in sight, filled by one message each; the agent sends from a thread of its own.
void devicesToPaint(PaneOnBus& pane, const QDBusConnection& agent) {
    constexpr int devices = 10'000;
    constexpr int fillings = 3;
    struct {
        const char* list;
        std::string_view message;
        int first; ///< device; a saved one would not be listed as connected
        ArrayController& content;
    } const lists[] = {
        {"connectedDevices", message::allConnectedDevices, 0, pane.real.arrayController},
        {"selectedDevices", message::allSavedDevices, devices, pane.real.savedArrayController}};
    pane.view.findChild<QTabWidget*>("tabView")->setCurrentIndex(0);
    std::printf("Longest turn of the main loop while %d devices come:", devices);
    for (int filling = 0; filling < fillings; ++filling) {
        for (const auto& filled : lists) {
            filled.content.removeAllArrangedObjects();
            const QDBusMessage message = deviceList(filled.message, filled.first, devices);
            auto* list = pane.view.findChild<qt::DeviceListView*>(filled.list);
            longestTurnUntil([list] { return list->model()->rowCount() == 0; });
            PaintWatch paint(*list->viewport());
            std::thread sender([&agent, &message] { agent.send(message); });
            const double turn = longestTurnUntil([&] {
                if (list->model()->rowCount() < devices)
                    paint.painted = false; // as an empty list
                return paint.painted;
            });
            sender.join();
            std::printf(" %.1f ms", turn / 1e3);
        }
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QDBusConnection agent = connection("agent");
    if (!agent.registerService(bus::agentName)) {
        std::fputs("the bus has an agent already, or there is none\n", stderr);
        return EXIT_FAILURE;
    }
    PaneOnBus pane;
    agent.send(signal(message::savedPrefs, {{"LaunchAtLogin", true}}));
    agent.send(signal(message::stateChanged, {{"state", true}}));
    turnUntil(
        [&pane] { return pane.real.launchAtLogin.isOn() && pane.real.launchAtLogin.isEnabled(); });
    std::printf("Medians of %d each, by turns, on one bus:\n", rounds);
    BareLayout bare;
    settingToSignal(pane, bare, connection("raw"), connection("listening"));
    messageToPaint(pane, bare, agent, connection("listening"));
    devicesToPaint(pane, agent);
    return EXIT_SUCCESS;
}

#include "HopBench.moc"
