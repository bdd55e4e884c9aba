#include "qt/devices/AccessibleDeviceList.h"

#include "qt/devices/DeviceListModel.h"
#include "qt/devices/DeviceListView.h"

#include <vector>

namespace zarvil::qt {

/// Belongs to the toolkit's cache.
class AccessibleDeviceRow final : public QAccessibleInterface,
                                  public QAccessibleActionInterface,
                                  public Hashed<AccessibleDeviceRow> {
public:
    AccessibleDeviceRow(const AccessibleDeviceList& list, RecordSerial serial)
        : list_(list), serial_(serial), id_(QAccessible::registerAccessibleInterface(this)) {
        list_.rows_.insert(*this);
    }
    ~AccessibleDeviceRow() override { list_.rows_.erase(*this); }

    [[nodiscard]] RecordSerial serial() const { return serial_; }
    [[nodiscard]] QAccessible::Id id() const { return id_; }
    [[nodiscard]] std::size_t hashKey() const { return serial_; }

    [[nodiscard]] bool isValid() const override { return index().isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return list_.window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&view());
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
        return nullptr;
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? index().data(Qt::AccessibleTextRole).toString()
                                         : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QRect rect() const override {
        const QRect place = view().visualRect(index());
        return {view().viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] QStringList actionNames() const override {
        return view().isEnabled() ? QStringList{toggleAction(), setFocusAction()} : QStringList();
    }
    void doAction(const QString& action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override {
        return action == toggleAction() ? QStringList(QKeySequence(Qt::Key_Space).toString())
                                        : QStringList();
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

private:
    [[nodiscard]] DeviceListView& view() const { return *list_.view(); }
    [[nodiscard]] QModelIndex index() const {
        const DeviceListModel* devices = view().devices();
        const auto row = devices ? devices->view().rowOfSerial(serial_) : std::nullopt;
        return row ? devices->index(static_cast<int>(*row)) : QModelIndex();
    }
    [[nodiscard]] bool isChecked() const {
        return index().data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }

    const AccessibleDeviceList& list_;
    RecordSerial serial_;
    QAccessible::Id id_;
};

QAccessible::State AccessibleDeviceRow::state() const {
    const DeviceListView& list = view();
    const bool isCurrent = list.currentIndex() == index();
    const bool inSight = list.viewport()->rect().intersects(list.visualRect(index()));
    QAccessible::State state;
    state.disabled = !list.isEnabled();
    state.invisible = !list.isVisible() || !inSight;
    state.offscreen = !inSight;
    state.checkable = true;
    state.checked = isChecked();
    state.selectable = true;
    state.selected = list.selectionModel()->isSelected(index());
    state.focusable = true;
    state.focused = isCurrent && list.hasFocus();
    state.active = isCurrent;
    return state;
}

void AccessibleDeviceRow::doAction(const QString& action) {
    if (!view().isEnabled())
        return;
    if (action == toggleAction()) {
        view().model()->setData(index(), isChecked() ? Qt::Unchecked : Qt::Checked,
                                Qt::CheckStateRole);
    } else if (action == setFocusAction()) {
        view().setFocus(Qt::OtherFocusReason);
        view().setCurrentIndex(index());
    }
}

AccessibleDeviceList::AccessibleDeviceList(DeviceListView* view)
    : QAccessibleWidget(view, QAccessible::List) {}

AccessibleDeviceList::~AccessibleDeviceList() { forgetAll(); }

DeviceListView* AccessibleDeviceList::view() const {
    return static_cast<DeviceListView*>(object());
}

int AccessibleDeviceList::childCount() const {
    const DeviceListModel* devices = view()->devices();
    return devices ? devices->rowCount() : 0;
}

QAccessibleInterface* AccessibleDeviceList::child(int row) const {
    if (row < 0 || row >= childCount())
        return nullptr;
    const RecordSerial serial =
        view()->devices()->view().serialAtRow(static_cast<std::size_t>(row));
    AccessibleDeviceRow* const known = rows_.find(serial);
    return known ? known : new AccessibleDeviceRow(*this, serial);
}

int AccessibleDeviceList::indexOfChild(const QAccessibleInterface* child) const {
    const auto* row = dynamic_cast<const AccessibleDeviceRow*>(child);
    const DeviceListModel* devices = view()->devices();
    const auto index = row && devices ? devices->view().rowOfSerial(row->serial()) : std::nullopt;
    return index ? static_cast<int>(*index) : -1;
}

QAccessibleInterface* AccessibleDeviceList::childAt(int x, int y) const {
    const QWidget& rows = *view()->viewport();
    const QPoint place = rows.mapFromGlobal(QPoint(x, y));
    return rows.rect().contains(place) ? child(view()->indexAt(place).row()) : nullptr;
}

QAccessibleInterface* AccessibleDeviceList::focusChild() const {
    return view()->hasFocus() ? child(view()->currentIndex().row()) : nullptr;
}

void AccessibleDeviceList::forget(RecordSerial serial) {
    if (const AccessibleDeviceRow* row = rows_.find(serial))
        QAccessible::deleteAccessibleInterface(row->id());
}

void AccessibleDeviceList::forgetAll() {
    std::vector<QAccessible::Id> all;
    rows_.forEach([&all](const AccessibleDeviceRow& row) { all.push_back(row.id()); });
    for (const QAccessible::Id id : all)
        QAccessible::deleteAccessibleInterface(id);
}

} // namespace zarvil::qt
