#include "qt/devices/DeviceItemDelegate.h"

#include "qt/devices/DeviceListModel.h"
#include "qt/devices/DeviceListView.h"
#include "qt/widgets/NoteCard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zarvil::qt {

namespace {

// In logical pixels; the insets and the radius are those of the card's outline.
constexpr qreal insetLeft = 3;
constexpr qreal insetRight = 2.5;
constexpr qreal insetTop = 7.5;
constexpr qreal insetBottom = 3;
constexpr qreal cornerRadius = 8;
constexpr int padding = 8;
constexpr int lineCount = 2;

constexpr QColor nameInk(0x26, 0x1C, 0x00);
constexpr QColor detailInk(0x4D, 0x3B, 0x00);
constexpr QColor focusInk(0x1A, 0x4F, 0xA3);

QRectF cardRect(const QRectF& bounds) {
    return bounds.adjusted(insetLeft, insetTop, -insetRight, -insetBottom);
}

void paintFocus(QPainter& painter, const QRectF& bounds) {
    constexpr qreal width = 2;
    painter.setPen(QPen(focusInk, width));
    painter.setBrush(Qt::NoBrush);
    const QRectF ring = cardRect(bounds).adjusted(width, width, -width, -width);
    painter.drawRoundedRect(ring, cornerRadius - width, cornerRadius - width);
}

/// Light, whatever the desktop's scheme: it is for what stands on the card.
QPalette cardPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Button, QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Base, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, nameInk);
    return palette;
}

QFont nameFont(const QStyleOptionViewItem& option) {
    QFont font = option.font;
    font.setWeight(QFont::DemiBold); // as the headings beside the list
    return font;
}

const QStyle& styleOf(const QStyleOptionViewItem& option) {
    return *(option.widget ? option.widget->style() : QApplication::style());
}

QRect contentRect(const QStyleOptionViewItem& option) {
    return cardRect(option.rect).toAlignedRect().adjusted(padding, padding, -padding, -padding);
}

/// A rectangle given for text that runs from left to right, mirrored where it does not.
QRect mirrored(const QStyleOptionViewItem& option, const QRect& rect) {
    return QStyle::visualRect(option.direction, option.rect, rect);
}

QRect checkBoxRect(const QStyleOptionViewItem& option) {
    const QStyle& style = styleOf(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    const QRect content = contentRect(option);
    return mirrored(option,
                    QRect(QPoint(content.left(), content.center().y() - size.height() / 2), size));
}

void paintCheckBox(QPainter& painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) {
    QStyleOptionViewItem box(option);
    box.rect = checkBoxRect(option);
    box.palette = cardPalette();
    box.state &=
        ~(QStyle::State_HasFocus | QStyle::State_Selected | QStyle::State_On | QStyle::State_Off);
    box.state |= index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStyle::State_On
                                                                       : QStyle::State_Off;
    styleOf(option).drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter,
                                  option.widget);
}

void paintLine(QPainter& painter, const QStyleOptionViewItem& option, const QRect& line,
               const QString& text) {
    // Clipped, for stacked combining characters reach far out of their line.
    painter.save();
    painter.setClipRect(line, Qt::IntersectClip);
    const auto alignment =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(line, static_cast<int>(alignment | Qt::AlignAbsolute) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideMiddle, line.width()));
    painter.restore();
}

void paintTexts(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QRect content = contentRect(option);
    const int left =
        content.left() +
        styleOf(option).pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget) + padding;
    const QFont bold = nameFont(option);
    const int nameHeight = QFontMetrics(bold).height();
    const int detailHeight = QFontMetrics(option.font).height();
    QRect line(left, content.top(), content.right() - left + 1, nameHeight);
    const auto paint = [&](const QFont& font, const QColor& ink, int role) {
        painter.setFont(font);
        painter.setPen(ink);
        paintLine(painter, option, mirrored(option, line), index.data(role).toString());
        line.moveTop(line.bottom() + 1);
        line.setHeight(detailHeight);
    };
    paint(bold, nameInk, Qt::DisplayRole);
    paint(option.font, detailInk, DeviceListModel::DetailRole);
}

bool toggle(QAbstractItemModel& model, const QModelIndex& index) {
    const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model.setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

} // namespace

void DeviceItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
    if (const auto* list = qobject_cast<const DeviceListView*>(option.widget))
        painter->setOpacity(list->opacity());
    paintNoteCard(*painter, option.rect, painter->device()->devicePixelRatio());
    if (option.state & QStyle::State_HasFocus)
        paintFocus(*painter, option.rect);
    paintCheckBox(*painter, option, index);
    paintTexts(*painter, option, index);
    painter->restore();
}

QSize DeviceItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& /*index*/) const {
    constexpr int columns = 24; // of the average character, for a list that is asked for its width
    const QFontMetrics details(option.font);
    const int text = QFontMetrics(nameFont(option)).height() + (lineCount - 1) * details.height();
    const auto insets = static_cast<int>(insetTop + insetBottom + 1);
    return {columns * details.averageCharWidth(), text + 2 * padding + insets};
}

bool DeviceItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                     const QStyleOptionViewItem& option, const QModelIndex& index) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto* press = static_cast<QMouseEvent*>(event);
        const bool onBox = press->button() == Qt::LeftButton &&
                           checkArea(option).contains(press->position().toPoint());
        pressed_ = onBox ? QPersistentModelIndex(index) : QPersistentModelIndex();
        return onBox;
    }
    case QEvent::MouseButtonRelease: {
        const auto* release = static_cast<QMouseEvent*>(event);
        const bool started = pressed_.isValid() && pressed_ == index;
        pressed_ = QPersistentModelIndex();
        return started && checkArea(option).contains(release->position().toPoint()) &&
               toggle(*model, index);
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool toggles = key->key() == Qt::Key_Space || key->key() == Qt::Key_Select;
        return toggles && (key->isAutoRepeat() || toggle(*model, index));
    }
    default:
        return false;
    }
}

QRect DeviceItemDelegate::checkArea(const QStyleOptionViewItem& option) {
    return checkBoxRect(option).adjusted(-padding, -padding, padding, padding);
}

} // namespace zarvil::qt
