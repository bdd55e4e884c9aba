#include "qt/widgets/Contrast.h"

#include <algorithm>
#include <cmath>

namespace zarvil::qt {

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isHighContrast(const QPalette& palette) {
    return contrastRatio(palette.color(QPalette::Active, QPalette::WindowText),
                         palette.color(QPalette::Active, QPalette::Window)) > 19.5;
}

} // namespace zarvil::qt
