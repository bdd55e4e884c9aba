#pragma once

#include "devices/ZVCollectionItem.h"

#include <QAbstractListModel>

#include <memory>

namespace zarvil::qt {

/// The rows of one collection view for an item view. It keeps none of them: a row that was never
/// on screen costs nothing here.
class DeviceListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { DetailRole = Qt::UserRole };

    /// The collection view is not owned and must outlive the model.
    explicit DeviceListModel(CollectionView& view, QObject* parent = nullptr);
    ~DeviceListModel() override;

    [[nodiscard]] CollectionView& view() const { return view_; }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Takes the check state alone, as the user's click. The row may be gone on return.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user ticked or unticked a row, which may have left the list.
    void userDidToggle();

private:
    void rowsChange(const RowChange& change);
    void rowsWillChange(const RowChange& change);
    void rowsDidChange(const RowChange& change);
    /// To be read at once.
    [[nodiscard]] const ZVCollectionItem* itemToReadAt(const QModelIndex& index) const;
    [[nodiscard]] std::shared_ptr<ZVCollectionItem> itemAt(const QModelIndex& index) const;

    CollectionView& view_;
    Subscription rowChanges_;
};

} // namespace zarvil::qt
