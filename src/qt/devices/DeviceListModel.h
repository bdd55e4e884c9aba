#pragma once

#include "devices/ZVCollectionItem.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace zarvil::qt {

/// The devices of one collection view as rows. An item, and what watches it, is made when its row
/// is first asked for its check box, so a row that was never on screen costs next to nothing.
class DeviceListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { VendorRole = Qt::UserRole, SerialRole };

    /// The collection view is not owned and must outlive the model.
    explicit DeviceListModel(CollectionView& view, QObject* parent = nullptr);
    ~DeviceListModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Takes the check state alone, as the user's click. The row may be gone on return.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        Record record;
        /// Set once the check box was asked for; its address marks the row while indices shift.
        std::unique_ptr<Subscription> stateChanges;
    };

    void contentDidChange(const ListChange& change);
    /// Null while the collection view is ahead of this model within one change.
    [[nodiscard]] std::shared_ptr<ZVCollectionItem> itemAt(std::size_t row) const;
    [[nodiscard]] Qt::CheckState checkState(std::size_t row) const;
    void watchState(Row& row, const ZVCollectionItem& item) const;
    void stateDidChange(const Subscription* mark);
    [[nodiscard]] QString textForKey(std::size_t row, std::string_view key,
                                     std::size_t limit) const;
    [[nodiscard]] QString name(std::size_t row, std::size_t limit) const;
    [[nodiscard]] QString serial(std::size_t row, std::size_t limit) const;
    [[nodiscard]] QString toolTip(std::size_t row) const;
    [[nodiscard]] QString spoken(std::size_t row) const;

    CollectionView& view_;
    /// Watching a row changes nothing that a reader of the model can see.
    mutable std::vector<Row> rows_;
    Subscription contentChanges_;
};

} // namespace zarvil::qt
