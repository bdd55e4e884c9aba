#include "qt/canvas/Convert.h"

#include <QLinearGradient>

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

QPainter::CompositionMode toQt(BlendMode mode) {
    switch (mode) {
    case BlendMode::Lighten:
        return QPainter::CompositionMode_Lighten;
    case BlendMode::Clear:
        return QPainter::CompositionMode_Clear;
    case BlendMode::SourceOver:
        break;
    }
    return QPainter::CompositionMode_SourceOver;
}

QBrush toQt(const Gradient& gradient, const QPointF& start, const QPointF& end) {
    QLinearGradient linear(start, end);
    QGradientStops stops;
    for (const GradientStop& stop : gradient.stops)
        stops.append({std::clamp(stop.location, 0.0, 1.0), toQt(stop.color)});
    linear.setStops(stops);
    return linear;
}

} // namespace zarvil::qt
