#pragma once

#include <QListView>

namespace zarvil {
class CollectionView;
}

namespace zarvil::qt {

class AccessibleDeviceList;
class DeviceListModel;

/// Shows the devices of one collection view, each with a check box that the user toggles by a
/// click or with Space. Assistive programs see it through an interface of its own.
class DeviceListView final : public QListView {
    Q_OBJECT
    /// Object name of the list that takes the keyboard when the user's tick empties this one.
    Q_PROPERTY(QString passesFocusTo READ passesFocusTo WRITE setPassesFocusTo)
    /// Of its cards, from 0 to 1.
    Q_PROPERTY(double opacity READ opacity WRITE setOpacity)

public:
    explicit DeviceListView(QWidget* parent = nullptr);

    /// The collection view is not owned and must outlive this view.
    void setModel(zarvil::CollectionView& view);
    /// The model; null before it is set.
    [[nodiscard]] const DeviceListModel* devices() const { return devices_; }

    [[nodiscard]] QString passesFocusTo() const { return passesFocusTo_; }
    void setPassesFocusTo(const QString& list) { passesFocusTo_ = list; }

    [[nodiscard]] double opacity() const { return opacity_; }
    void setOpacity(double opacity);

    [[nodiscard]] QSize minimumSizeHint() const override;
    void reset() override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    using QListView::setModel;
    void announceCurrentRow();
    void ensureCurrentRow();
    void passFocusWhenEmpty();

    AccessibleDeviceList* accessible_; ///< belongs to the toolkit's cache
    DeviceListModel* devices_ = nullptr;
    QString passesFocusTo_;
    double opacity_ = 1;
};

} // namespace zarvil::qt
