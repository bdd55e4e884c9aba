#include "qt/binding/Opacity.h"

#include <QGraphicsOpacityEffect>
#include <QVariantAnimation>
#include <QWidget>

namespace zarvil::qt {

namespace {

constexpr int fadeDuration = 250; // milliseconds, the original animator's default
constexpr auto fadeName = "Fade";

/// The effect is made when it is first needed and idle at full opacity, where it would only cost.
void applyOpacity(QWidget& widget, double opacity) {
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    if (!effect) {
        if (opacity >= 1)
            return;
        effect = new QGraphicsOpacityEffect(&widget);
        widget.setGraphicsEffect(effect);
    }
    effect->setOpacity(opacity);
    effect->setEnabled(opacity < 1);
}

double shownOpacity(const QWidget& widget) {
    const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    return effect ? effect->opacity() : 1;
}

} // namespace

void showOpacity(QWidget& widget, double opacity, Transition transition) {
    delete widget.findChild<QVariantAnimation*>(fadeName, Qt::FindDirectChildrenOnly);
    if (transition == Transition::Immediate || !widget.isVisible()) {
        applyOpacity(widget, opacity);
        return;
    }
    auto* fade = new QVariantAnimation(&widget);
    fade->setObjectName(fadeName);
    fade->setDuration(fadeDuration);
    fade->setStartValue(shownOpacity(widget));
    fade->setEndValue(opacity);
    QObject::connect(fade, &QVariantAnimation::valueChanged, &widget,
                     [&widget](const QVariant& value) { applyOpacity(widget, value.toDouble()); });
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace zarvil::qt
