#include "qt/widgets/MarginScrollBar.h"

#include "qt/widgets/Form.h"
#include "qt/widgets/Theme.h"

#include <QAbstractScrollArea>
#include <QEvent>

namespace zarvil::qt {

void MarginScrollBar::attachTo(QAbstractScrollArea& list) {
    for (QWidget* around = list.parentWidget(); around; around = around->parentWidget())
        if (auto* column = qobject_cast<Column*>(around)) {
            new MarginScrollBar(list, *column);
            return;
        }
}

MarginScrollBar::MarginScrollBar(QAbstractScrollArea& list, Column& column)
    : QScrollBar(Qt::Vertical, &column), list_(list), column_(column) {
    hide();
    QScrollBar& own = *list.verticalScrollBar();
    connect(&own, &QScrollBar::rangeChanged, this, &MarginScrollBar::follow);
    connect(&own, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
    connect(this, &QScrollBar::valueChanged, &own, &QScrollBar::setValue);
    // It moves with whatever the list stands in.
    for (QWidget* widget = &list; widget != &column; widget = widget->parentWidget())
        widget->installEventFilter(this);
    column.installEventFilter(this);
}

bool MarginScrollBar::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
        event->type() == QEvent::Show || event->type() == QEvent::Hide)
        stand();
    return false;
}

void MarginScrollBar::stand() {
    const int extent = sizeHint().width();
    const int gap = (theme::sideMargin - extent) / 2;
    const QRect rows(list_.mapTo(&column_, QPoint()), list_.size());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int left = mirrored ? rows.left() - gap - extent : rows.right() + 1 + gap;
    setGeometry(left, rows.top(), extent, rows.height());
    const bool hasRoom = gap >= 0 && left >= 0 && left + extent <= column_.width();
    list_.setVerticalScrollBarPolicy(hasRoom ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    follow();
}

void MarginScrollBar::follow() {
    const QScrollBar& own = *list_.verticalScrollBar();
    setRange(own.minimum(), own.maximum());
    setPageStep(own.pageStep());
    setSingleStep(own.singleStep());
    setValue(own.value());
    setVisible(list_.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff &&
               list_.isVisibleTo(&column_) && own.maximum() > own.minimum());
}

} // namespace zarvil::qt
