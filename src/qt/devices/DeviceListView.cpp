#include "qt/devices/DeviceListView.h"

#include "qt/devices/AccessibleDeviceList.h"
#include "qt/devices/DeviceItemDelegate.h"
#include "qt/devices/DeviceListModel.h"
#include "qt/widgets/MarginScrollBar.h"

namespace zarvil::qt {

namespace {

/// Tells assistive programs of a row, if there are any.
void tellOfRow(QWidget* list, QAccessible::Event kind, const QModelIndex& row) {
    if (!row.isValid() || !QAccessible::isActive())
        return;
    QAccessibleEvent event(list, kind);
    event.setChild(row.row());
    QAccessible::updateAccessibility(&event);
}

} // namespace

DeviceListView::DeviceListView(QWidget* parent)
    : QListView(parent), accessible_(new AccessibleDeviceList(this)) {
    // Before the model comes, for that makes the toolkit ask for an interface.
    QAccessible::registerAccessibleInterface(accessible_);
    setItemDelegate(new DeviceItemDelegate(this));
    setFrameShape(QFrame::NoFrame);
    // The cards stand on the window's ground.
    viewport()->setAutoFillBackground(false);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    MarginScrollBar::attachTo(*this);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void DeviceListView::setModel(zarvil::CollectionView& view) {
    const DeviceListModel* former = devices_;
    devices_ = new DeviceListModel(view, this);
    setModel(devices_);
    delete former;
    connect(devices_, &DeviceListModel::userDidToggle, this, &DeviceListView::passFocusWhenEmpty);
}

void DeviceListView::setOpacity(double opacity) {
    opacity_ = opacity;
    viewport()->update();
}

// Enough for the words in place of the rows as well; what is lower scrolls with the page.
QSize DeviceListView::minimumSizeHint() const {
    constexpr int fewestCards = 2;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int card = itemDelegate()->sizeHint(option, {}).height();
    return {QListView::minimumSizeHint().width(), fewestCards * card};
}

void DeviceListView::reset() {
    accessible_->forgetAll();
    QListView::reset();
}

void DeviceListView::rowsInserted(const QModelIndex& parent, int start, int end) {
    QListView::rowsInserted(parent, start, end);
    if (hasFocus())
        ensureCurrentRow();
}

void DeviceListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
    QListView::rowsAboutToBeRemoved(parent, start, end);
    for (int row = start; row <= end; ++row)
        accessible_->forget(devices_->view().serialAtRow(static_cast<std::size_t>(row)));
}

// The base class would lay all rows out anew to count the hidden ones before its own; none is.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void DeviceListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QAbstractItemView::currentChanged(current, previous);
    announceCurrentRow();
}

void DeviceListView::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(selected, deselected);
    tellOfRow(this, QAccessible::SelectionRemove, deselected.indexes().value(0));
    tellOfRow(this, QAccessible::Selection, selected.indexes().value(0));
}
// NOLINTEND(bugprone-parent-virtual-call)

void DeviceListView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    ensureCurrentRow();
    announceCurrentRow();
}

// The base does so only in a list that never had one.
void DeviceListView::ensureCurrentRow() {
    if (!currentIndex().isValid() && model() && model()->rowCount() > 0)
        setCurrentIndex(model()->index(0, 0));
}

void DeviceListView::passFocusWhenEmpty() {
    if (!hasFocus() || model()->rowCount() > 0)
        return;
    auto* other = window()->findChild<DeviceListView*>(passesFocusTo_);
    if (other && other->model() && other->model()->rowCount() > 0)
        other->setFocus(Qt::OtherFocusReason);
}

void DeviceListView::announceCurrentRow() {
    if (!hasFocus())
        return;
    tellOfRow(this, QAccessible::ActiveDescendantChanged, currentIndex());
    tellOfRow(this, QAccessible::Focus, currentIndex());
}

QModelIndex DeviceListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // Without a current row the base goes to the first one, whatever the key.
    if (action == MoveEnd && model() && model()->rowCount() > 0)
        return model()->index(model()->rowCount() - 1, 0);
    return QListView::moveCursor(action, modifiers);
}

} // namespace zarvil::qt
