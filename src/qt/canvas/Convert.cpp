#include "qt/canvas/Convert.h"

#include <algorithm>

namespace zarvil::qt {

namespace {

float component(double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); }

} // namespace

Qt::Alignment toQt(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::Centered:
        return Qt::AlignHCenter;
    case TextAlignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case TextAlignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignAbsolute;
}

QColor toQt(const Color& color) {
    return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue),
                            component(color.alpha));
}

} // namespace zarvil::qt
