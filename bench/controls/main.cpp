#include "controls/KXButtonCell.h"
#include "controls/ZVMessageView.h"
#include "qt/canvas/RasterPainter.h"
#include "qt/widgets/NoteCard.h"
#include "raster/RasterImage.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

/// Times the drawing of the controls on a window's kind of surface.
namespace {

using namespace zarvil;

class StandingClock final : public Clock {
public:
    [[nodiscard]] double timeIntervalSinceReferenceDate() const override { return 0; }
};

/// A part of a window of so many points, at a pixel density.
QImage surface(QSize points, int scale) {
    QImage image(points * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::lightGray);
    return image;
}

/// Average and 99th percentile of many runs, in milliseconds.
void report(const char* name, int runs, const std::function<void(int)>& run) {
    std::vector<double> times;
    for (int index = 0; index < runs; ++index) {
        const auto start = std::chrono::steady_clock::now();
        run(index);
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
    }
    double sum = 0;
    for (const double time : times)
        sum += time;
    std::ranges::sort(times);
    std::printf("%-46s average %.4f ms, 99th percentile %.4f ms\n", name, sum / runs,
                times[times.size() * 99 / 100]);
}

constexpr int runs = 5000;

/// The knob goes to and fro below the pointer, from one end of the track to the other.
void benchSwitch(const char* name, double step) {
    const StandingClock clock;
    KXButtonCell cell(std::nullopt, clock);
    cell.startTrackingAt({10, 13}, nullptr);
    QImage window = surface({60, 26}, 2);
    qt::RasterPainter raster;
    report(name, runs, [&](int index) {
        const double travel = std::fmod(index * step, 34);
        cell.continueTracking({}, {10 + travel, 13}, nullptr);
        QPainter painter(&window);
        raster.paint(painter, {60, 26}, Orientation::YDown, [&](Canvas& canvas) {
            cell.drawWithFrame({0, 0, 60, 26}, nullptr, canvas);
        });
    });
}

void benchPanel(const char* name, int scale) {
    RasterImageRenderer renderer;
    ZVMessageView panel(renderer, {0, 0, 300, 160});
    QImage window = surface({300, 160}, scale);
    qt::RasterPainter raster;
    report(name, runs, [&](int) {
        QPainter painter(&window);
        raster.paintKept(painter, {300, 160}, Orientation::YUp,
                         [&](Canvas& canvas) { panel.drawRect(canvas); });
    });
}

/// A list of cards scrolled by a point a frame: what one frame of the window costs.
void benchCards() {
    QImage window = surface({280, 400}, 2);
    report("list of note cards, one frame, scale 2", runs, [&](int index) {
        QPainter painter(&window);
        for (int y = -(index % 60); y < 400; y += 60)
            qt::paintNoteCard(painter, {0, static_cast<double>(y), 280, 60}, 2);
    });
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchSwitch("switch dragged by points, scale 2", 1);
    benchSwitch("switch dragged by odd fractions, scale 2", 0.37);
    benchPanel("panel of 300 by 160 from its image, scale 1", 1);
    benchPanel("panel of 300 by 160 from its image, scale 2", 2);
    benchCards();
    return 0;
}
