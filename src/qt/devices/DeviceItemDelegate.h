#pragma once

#include <QFont>
#include <QRect>
#include <QStyledItemDelegate>

namespace zarvil::qt {

/// Draws a device as a note card with a check box and two lines: its name, and below it what else
/// tells it apart. The card
/// is the same yellow in every color scheme, so what stands on it is always dark.
class DeviceItemDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// The same for every row.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    /// Toggles on a click that starts and ends on the check box, and on Space.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    /// Where a click toggles the row: the check box and a finger's breadth around it.
    [[nodiscard]] static QRect checkArea(const QStyleOptionViewItem& option);

private:
    QPersistentModelIndex pressed_;
};

} // namespace zarvil::qt
