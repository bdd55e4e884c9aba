#pragma once

#include <QListView>

namespace zarvil {
class CollectionView;
}

namespace zarvil::qt {

/// Shows the devices of one collection view, each with a check box that the user toggles by a
/// click or with Space.
class DeviceListView final : public QListView {
    Q_OBJECT

public:
    explicit DeviceListView(QWidget* parent = nullptr);

    /// The collection view is not owned and must outlive this view.
    void setModel(zarvil::CollectionView& view);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    using QListView::setModel;
};

} // namespace zarvil::qt
