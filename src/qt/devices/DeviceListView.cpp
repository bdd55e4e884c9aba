#include "qt/devices/DeviceListView.h"

#include "qt/devices/DeviceItemDelegate.h"
#include "qt/devices/DeviceListModel.h"

namespace zarvil::qt {

DeviceListView::DeviceListView(QWidget* parent) : QListView(parent) {
    setItemDelegate(new DeviceItemDelegate(this));
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void DeviceListView::setModel(zarvil::CollectionView& view) {
    const QAbstractItemModel* former = model();
    setModel(new DeviceListModel(view, this));
    delete former;
}

QModelIndex DeviceListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // Without a current row the base goes to the first one, whatever the key.
    if (action == MoveEnd && model() && model()->rowCount() > 0)
        return model()->index(model()->rowCount() - 1, 0);
    return QListView::moveCursor(action, modifiers);
}

} // namespace zarvil::qt
