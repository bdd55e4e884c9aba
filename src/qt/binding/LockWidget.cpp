#include "qt/binding/LockWidget.h"

#include "qt/text/ToolTip.h"
#include "qt/widgets/SymbolWidget.h"
#include "qt/widgets/TextLabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace zarvil::qt {

namespace {

constexpr int gap = 6;
constexpr int focusMargin = 2;

} // namespace

LockWidget::LockWidget(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void LockWidget::setReason(const QString& reason) {
    if (designedToolTip_.isEmpty())
        designedToolTip_ = toolTip();
    reason_ = reason;
    setToolTip(reason.isEmpty() ? designedToolTip_ : plainToolTip(reason));
    setAccessibleDescription(reason);
}

QSize LockWidget::sizeHint() const {
    const auto* line = findChild<TextLabel*>();
    const auto* symbol = findChild<SymbolWidget*>();
    if (!line || !symbol)
        return {};
    const QSize text = line->sizeHint();
    const int height = std::max(text.height(), symbol->extent()) + 2 * focusMargin;
    return {symbol->extent() + gap + text.width() + 2 * focusMargin, height};
}

QSize LockWidget::minimumSizeHint() const {
    const auto* line = findChild<TextLabel*>();
    return {line ? line->minimumSizeHint().width() : 0, sizeHint().height()};
}

void LockWidget::placeChildren() {
    auto* line = findChild<TextLabel*>();
    auto* symbol = findChild<SymbolWidget*>();
    if (!line || !symbol)
        return;
    const int extent = symbol->extent();
    const QRect picture(focusMargin, (height() - extent) / 2, extent, extent);
    const int left = picture.right() + 1 + gap;
    const QRect text(left, 0, std::max(0, width() - left - focusMargin), height());
    setAccessibleName(line->text());
    symbol->setGeometry(QStyle::visualRect(layoutDirection(), rect(), picture));
    line->setGeometry(QStyle::visualRect(layoutDirection(), rect(), text));
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
}

bool LockWidget::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange ||
        event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        placeChildren();
    }
    return QAbstractButton::event(event);
}

void LockWidget::resizeEvent(QResizeEvent* /*event*/) { placeChildren(); }

void LockWidget::paintEvent(QPaintEvent* /*event*/) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

} // namespace zarvil::qt
