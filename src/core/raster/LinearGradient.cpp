#include "raster/LinearGradient.h"

#include "raster/Blend.h"

#include <algorithm>
#include <cmath>

namespace zarvil::raster {

namespace {

double limited(double value) { return value > 0 ? std::min(value, 1.0) : 0; }

} // namespace

void LinearGradient::set(const Gradient& gradient, Point start, Point end) {
    stops_.clear();
    for (const GradientStop& stop : gradient.stops) {
        const double alpha = limited(stop.color.alpha);
        // Never before the stop that comes first.
        const double least = stops_.empty() ? 0 : stops_.back().location;
        stops_.push_back({std::max(least, limited(stop.location)), limited(stop.color.red) * alpha,
                          limited(stop.color.green) * alpha, limited(stop.color.blue) * alpha,
                          alpha});
    }
    start_ = start;
    const Point axis{end.x - start.x, end.y - start.y};
    const double square = axis.x * axis.x + axis.y * axis.y;
    perPixel_ =
        square > 0 && std::isfinite(square) ? Point{axis.x / square, axis.y / square} : Point{};
}

bool LinearGradient::isOpaque() const {
    return std::ranges::all_of(stops_, [](const Stop& stop) { return stop.alpha == 1; });
}

Pixel LinearGradient::at(double location) const {
    const auto after = std::ranges::find_if(
        stops_, [location](const Stop& stop) { return stop.location > location; });
    const Stop& to = after == stops_.end() ? stops_.back() : *after;
    const Stop& from = after == stops_.begin() ? to : *std::prev(after);
    const double distance = to.location - from.location;
    const double part = distance > 0 ? (location - from.location) / distance : 1;
    const auto channel = [part](double low, double high) {
        return Pixel{share(low + (high - low) * part)};
    };
    return channel(from.red, to.red) | channel(from.green, to.green) << 16 |
           channel(from.blue, to.blue) << 32 | channel(from.alpha, to.alpha) << 48;
}

void LinearGradient::row(int x, int y, int count, Pixel* pixels) const {
    if (stops_.empty()) {
        std::fill_n(pixels, count, Pixel{0});
        return;
    }
    const double first = (x + 0.5 - start_.x) * perPixel_.x + (y + 0.5 - start_.y) * perPixel_.y;
    // Less than a step of a channel from one end of the row to the other.
    constexpr double even = 1e-6;
    if (std::abs(perPixel_.x * count) < even) {
        std::fill_n(pixels, count, at(first));
        return;
    }
    for (int index = 0; index < count; ++index)
        pixels[index] = at(first + index * perPixel_.x);
}

} // namespace zarvil::raster
