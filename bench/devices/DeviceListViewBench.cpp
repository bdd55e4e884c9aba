#include "PaneOnFakes.h"
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

/// Counts the paintings of a widget.
class PaintCounter final : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paintings += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paintings = 0;
};

Message connectedDevices(int count) {
    Array devices;
    for (int number = 0; number < count; ++number)
        devices.emplace_back(Dictionary{{"DeviceName", "Power device " + std::to_string(number)},
                                        {"DeviceVendor", "Vendor"},
                                        {"DeviceSerial", "SN-" + std::to_string(number)}});
    return {message::allConnectedDevices, Dictionary{{"devices", std::move(devices)}}};
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void showAndScroll(int count) {
    PaneOnFakes fakes;
    qt::DeviceListView view;
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

    constexpr int frames = 300;
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
    std::printf(", a frame of scrolling %.2f ms, worst %.2f ms\n", total / frames, worst);
}

} // namespace
} // namespace zarvil

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const int count : {100, 1'000, 10'000})
        zarvil::showAndScroll(count);
}
