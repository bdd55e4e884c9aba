#include "qt/devices/DeviceListView.h"

#include "qt/devices/DeviceItemDelegate.h"
#include "qt/devices/DeviceListModel.h"

#include <QPainter>

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
    auto* devices = new DeviceListModel(view, this);
    setModel(devices);
    delete former;
    const auto refresh = [this] { showWhetherEmpty(); };
    connect(devices, &QAbstractItemModel::rowsInserted, this, refresh);
    connect(devices, &QAbstractItemModel::rowsRemoved, this, refresh);
    connect(devices, &QAbstractItemModel::modelReset, this, refresh);
    dimming_ = view.alphaProperty().observe([this](double opacity, Transition) {
        dimmed_ = opacity < alpha::active;
        showWhetherEmpty();
    });
    showWhetherEmpty();
}

void DeviceListView::setEmptyText(const QString& text) {
    emptyText_ = text;
    showWhetherEmpty();
}

void DeviceListView::setUnknownText(const QString& text) {
    unknownText_ = text;
    showWhetherEmpty();
}

QString DeviceListView::placeholder() const {
    if (!isEmpty())
        return {};
    return dimmed_ ? unknownText_ : emptyText_;
}

bool DeviceListView::isEmpty() const { return !model() || model()->rowCount() == 0; }

void DeviceListView::showWhetherEmpty() {
    if (accessibleDescription() == placeholder())
        return;
    setAccessibleDescription(placeholder());
    viewport()->update();
}

QModelIndex DeviceListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // Without a current row the base goes to the first one, whatever the key.
    if (action == MoveEnd && !isEmpty())
        return model()->index(model()->rowCount() - 1, 0);
    return QListView::moveCursor(action, modifiers);
}

void DeviceListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!isEmpty())
        return;
    constexpr int margin = 16;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, placeholder());
}

} // namespace zarvil::qt
