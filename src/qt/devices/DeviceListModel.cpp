#include "qt/devices/DeviceListModel.h"

#include "protocol/Messages.h"
#include "qt/devices/DisplayText.h"

#include <QStringList>

#include <algorithm>

namespace zarvil::qt {

namespace {

// In bytes: more than any row can show, and as much as a tool tip can usefully hold.
constexpr std::size_t rowLimit = 512;
constexpr std::size_t toolTipLimit = 4096;

std::size_t rowOf(const QModelIndex& index) { return static_cast<std::size_t>(index.row()); }

} // namespace

DeviceListModel::DeviceListModel(CollectionView& view, QObject* parent)
    : QAbstractListModel(parent),
      view_(view),
      contentChanges_(
          view.content().observe([this](const ListChange& change) { contentDidChange(change); })) {}

DeviceListModel::~DeviceListModel() = default;

int DeviceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant DeviceListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::size_t row = rowOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return name(row, rowLimit);
    case VendorRole:
        return textForKey(row, payload::deviceVendor, rowLimit);
    case SerialRole:
        return serial(row, rowLimit);
    case Qt::ToolTipRole:
        return toolTip(row);
    case Qt::AccessibleTextRole:
        return spoken(row);
    case Qt::CheckStateRole:
        return checkState(row);
    default:
        return {};
    }
}

bool DeviceListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    // Held, for the item may leave its list while it tells of the click.
    const auto item = itemAt(rowOf(index));
    if (!item)
        return false;
    item->userDidSetState(value.toInt() == Qt::Unchecked ? 0 : 1);
    return true;
}

Qt::ItemFlags DeviceListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

void DeviceListModel::contentDidChange(const ListChange& change) {
    const auto row = static_cast<int>(change.index);
    const auto offset = static_cast<std::ptrdiff_t>(change.index);
    switch (change.kind) {
    case ListChange::Kind::Inserted:
        beginInsertRows({}, row, row);
        rows_.insert(rows_.begin() + offset, Row{change.record, nullptr});
        endInsertRows();
        break;
    case ListChange::Kind::Removed:
        beginRemoveRows({}, row, row);
        rows_.erase(rows_.begin() + offset);
        endRemoveRows();
        break;
    case ListChange::Kind::Cleared:
        beginResetModel();
        rows_.clear();
        endResetModel();
        break;
    }
}

std::shared_ptr<ZVCollectionItem> DeviceListModel::itemAt(std::size_t row) const {
    auto item = view_.itemAtIndexAs<ZVCollectionItem>(row);
    return item && item->representedObject() == rows_[row].record ? item : nullptr;
}

Qt::CheckState DeviceListModel::checkState(std::size_t row) const {
    const auto item = itemAt(row);
    if (!item)
        return Qt::Unchecked;
    if (!rows_[row].stateChanges)
        watchState(rows_[row], *item);
    return item->state() != 0 ? Qt::Checked : Qt::Unchecked;
}

void DeviceListModel::watchState(Row& row, const ZVCollectionItem& item) const {
    // The replay of the current state finds the mark not yet entered, and so tells nobody.
    auto mark = std::make_unique<Subscription>();
    auto* self = const_cast<DeviceListModel*>(this);
    *mark = item.stateProperty().observe(
        [self, key = mark.get()](unsigned long, Transition) { self->stateDidChange(key); });
    row.stateChanges = std::move(mark);
}

void DeviceListModel::stateDidChange(const Subscription* mark) {
    const auto row = std::ranges::find_if(
        rows_, [mark](const Row& candidate) { return candidate.stateChanges.get() == mark; });
    if (row == rows_.end())
        return;
    const QModelIndex changed = index(static_cast<int>(row - rows_.begin()));
    Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
}

QString DeviceListModel::textForKey(std::size_t row, std::string_view key,
                                    std::size_t limit) const {
    const Value* value = rows_[row].record->contents().objectForKey(key);
    if (!value)
        return {};
    if (const auto* text = value->as<std::string>())
        return displayText(*text, limit);
    if (const auto* number = value->as<std::int64_t>())
        return QString::number(*number);
    if (const auto* number = value->as<double>())
        return QString::number(*number);
    return {};
}

QString DeviceListModel::name(std::size_t row, std::size_t limit) const {
    const QString text = textForKey(row, payload::deviceName, limit);
    return text.trimmed().isEmpty() ? tr("Unnamed device") : text;
}

QString DeviceListModel::serial(std::size_t row, std::size_t limit) const {
    const QString text = textForKey(row, payload::deviceSerial, limit);
    const auto unknown = QLatin1String(payload::unknownSerial.data());
    return text.isEmpty() || text == unknown ? tr("No serial number") : text;
}

QString DeviceListModel::toolTip(std::size_t row) const {
    // Escaped, for a tool tip takes what looks like markup for markup; a block of its own for each
    // text, so that each finds its own direction.
    QString blocks;
    for (const QString& text :
         {name(row, toolTipLimit), textForKey(row, payload::deviceVendor, toolTipLimit),
          serial(row, toolTipLimit)}) {
        if (!text.isEmpty())
            blocks += QLatin1String("<p style='margin:0'>") + text.toHtmlEscaped() +
                      QLatin1String("</p>");
    }
    return blocks;
}

QString DeviceListModel::spoken(std::size_t row) const {
    QStringList parts{name(row, rowLimit), textForKey(row, payload::deviceVendor, rowLimit),
                      serial(row, rowLimit)};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace zarvil::qt
