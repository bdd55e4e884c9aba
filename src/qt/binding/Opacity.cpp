#include "qt/binding/Opacity.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QVariantAnimation>
#include <QWidget>

#include <vector>

namespace zarvil::qt {

namespace {

constexpr int fadeDuration = 250; // milliseconds, the original platform's default
constexpr auto fadeName = "Fade";
constexpr auto glassName = "Glass";

/// Makes a widget and what is in it let shine through what is behind, for as long as this lives.
/// Behind a descendant that says that it is opaque, as the sheet of a list does, nothing is drawn
/// anew, whatever the effect on its ancestor: former pictures would show through.
class Glass final : public QObject {
public:
    explicit Glass(QWidget& widget) : QObject(&widget) {
        setObjectName(glassName);
        for (QWidget* pane : widget.findChildren<QWidget*>()) {
            if (pane->autoFillBackground()) {
                pane->setAutoFillBackground(false);
                pane->installEventFilter(this);
                filled_.emplace_back(pane);
            }
            if (pane->testAttribute(Qt::WA_OpaquePaintEvent)) {
                pane->setAttribute(Qt::WA_OpaquePaintEvent, false);
                painted_.emplace_back(pane);
            }
        }
    }

    ~Glass() override {
        for (const auto& pane : filled_) {
            if (pane)
                pane->setAutoFillBackground(true);
        }
        for (const auto& pane : painted_) {
            if (pane)
                pane->setAttribute(Qt::WA_OpaquePaintEvent);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            auto& pane = *static_cast<QWidget*>(watched);
            QPainter(&pane).fillRect(pane.rect(), pane.palette().brush(pane.backgroundRole()));
        }
        return false;
    }

private:
    std::vector<QPointer<QWidget>> filled_;
    std::vector<QPointer<QWidget>> painted_;
};

void showThrough(QWidget& widget, bool through) {
    auto* glass = widget.findChild<QObject*>(glassName, Qt::FindDirectChildrenOnly);
    if (!through)
        delete glass;
    else if (!glass)
        new Glass(widget);
}

constexpr auto ownOpacity = "opacity";

/// Whether the widget paints itself at an opacity that it is told, which costs no picture of it.
bool dimsItself(const QWidget& widget) {
    return widget.metaObject()->indexOfProperty(ownOpacity) >= 0;
}

/// The effect is made when it is first needed and idle at full opacity, where it would only cost.
void applyOpacity(QWidget& widget, double opacity) {
    if (dimsItself(widget)) {
        widget.setProperty(ownOpacity, opacity);
        return;
    }
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    if (!effect) {
        if (opacity >= 1)
            return;
        effect = new QGraphicsOpacityEffect(&widget);
        widget.setGraphicsEffect(effect);
    }
    showThrough(widget, opacity < 1);
    effect->setOpacity(opacity);
    effect->setEnabled(opacity < 1);
}

double shownOpacity(const QWidget& widget) {
    if (dimsItself(widget))
        return widget.property(ownOpacity).toDouble();
    const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    return effect ? effect->opacity() : 1;
}

} // namespace

void showOpacity(QWidget& widget, double opacity, Transition transition) {
    delete widget.findChild<QVariantAnimation*>(fadeName, Qt::FindDirectChildrenOnly);
    const bool glides = transition == Transition::Animated && widget.isVisible() &&
                        QApplication::isEffectEnabled(Qt::UI_General) &&
                        widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
    if (!glides) {
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
