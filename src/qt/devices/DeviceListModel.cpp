#include "qt/devices/DeviceListModel.h"

#include "qt/text/ToolTip.h"

namespace zarvil::qt {

DeviceListModel::DeviceListModel(CollectionView& view, QObject* parent)
    : QAbstractListModel(parent),
      view_(view),
      rowChanges_(view.observeRows([this](const RowChange& change) { rowsChange(change); })) {}

DeviceListModel::~DeviceListModel() = default;

int DeviceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(view_.rowCount());
}

QVariant DeviceListModel::data(const QModelIndex& index, int role) const {
    const ZVCollectionItem* item = itemToReadAt(index);
    if (!item)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromUtf8(item->name());
    case DetailRole:
        return QString::fromUtf8(item->detail());
    case Qt::ToolTipRole:
        return plainToolTip(QString::fromUtf8(item->toolTip()));
    case Qt::AccessibleTextRole:
        return QString::fromUtf8(item->spokenName());
    case Qt::CheckStateRole:
        return item->state() != 0 ? Qt::Checked : Qt::Unchecked;
    default:
        return {};
    }
}

bool DeviceListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole)
        return false;
    // Held, for the item may leave its list while it tells of the click.
    const auto item = itemAt(index);
    if (!item)
        return false;
    item->userDidSetState(value.toInt() == Qt::Unchecked ? 0 : 1);
    Q_EMIT userDidToggle();
    return true;
}

Qt::ItemFlags DeviceListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

void DeviceListModel::rowsChange(const RowChange& change) {
    if (change.phase == RowChange::Phase::Before)
        rowsWillChange(change);
    else
        rowsDidChange(change);
}

void DeviceListModel::rowsWillChange(const RowChange& change) {
    const auto row = static_cast<int>(change.row);
    const auto to = static_cast<int>(change.to);
    switch (change.kind) {
    case RowChange::Kind::Inserted:
        beginInsertRows({}, row, row);
        break;
    case RowChange::Kind::Removed:
        beginRemoveRows({}, row, row);
        break;
    case RowChange::Kind::Moved:
        beginMoveRows({}, row, row, {}, to > row ? to + 1 : to);
        break;
    case RowChange::Kind::Cleared:
        beginResetModel();
        break;
    case RowChange::Kind::Changed:
        break;
    }
}

void DeviceListModel::rowsDidChange(const RowChange& change) {
    switch (change.kind) {
    case RowChange::Kind::Inserted:
        endInsertRows();
        break;
    case RowChange::Kind::Removed:
        endRemoveRows();
        break;
    case RowChange::Kind::Moved:
        endMoveRows();
        break;
    case RowChange::Kind::Cleared:
        endResetModel();
        break;
    case RowChange::Kind::Changed: {
        const QModelIndex changed = index(static_cast<int>(change.row));
        Q_EMIT dataChanged(changed, changed);
        break;
    }
    }
}

const ZVCollectionItem* DeviceListModel::itemToReadAt(const QModelIndex& index) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return nullptr;
    return dynamic_cast<const ZVCollectionItem*>(
        view_.itemToReadAtRow(static_cast<std::size_t>(index.row())));
}

std::shared_ptr<ZVCollectionItem> DeviceListModel::itemAt(const QModelIndex& index) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return nullptr;
    return view_.itemAtRowAs<ZVCollectionItem>(static_cast<std::size_t>(index.row()));
}

} // namespace zarvil::qt
