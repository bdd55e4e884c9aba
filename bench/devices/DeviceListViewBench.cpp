#include "PaneOnFakes.h"
#include "protocol/Messages.h"
#include "qt/devices/DeviceListView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <string>

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

} // namespace
} // namespace zarvil

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const int count : {100, 1'000, 10'000})
        zarvil::measure(count);
}
