#include "interface/CollectionView.h"

#include <algorithm>
#include <new>

namespace zarvil {

using Kind = RowChange::Kind;
using Phase = RowChange::Phase;

void CollectionViewItem::appearanceDidChange() {
    if (!collectionView_)
        return;
    if (const auto row = collectionView_->rowOfSerial(serial_))
        collectionView_->notify(Kind::Changed, Phase::After, *row);
}

std::unique_ptr<CollectionView::Row> CollectionView::Row::make(std::string_view key,
                                                               RecordSerial serial, Record record) {
    void* const memory = ::operator new(sizeof(Row) + key.size());
    std::unique_ptr<Row> row(new (memory) Row(key.size(), serial, std::move(record)));
    std::ranges::copy(key, reinterpret_cast<char*>(row.get() + 1));
    return row;
}

CollectionView::CollectionView(ArrayController& content, Prototype prototype, SortKey sortKey)
    : content_(content),
      prototype_(std::move(prototype)),
      sortKey_(sortKey),
      contentChanges_(
          content.observe([this](const ListChange& change) { contentDidChange(change); })) {}

CollectionView::~CollectionView() {
    for (const Row& row : rows_)
        release(row);
}

std::shared_ptr<CollectionViewItem> CollectionView::itemAtIndex(std::size_t index) {
    if (index >= content_.arrangedObjects().size())
        return nullptr;
    Row* const row = rowsBySerial_.find(content_.serialAtIndex(index));
    return row ? itemOf(*row) : nullptr;
}

std::shared_ptr<CollectionViewItem> CollectionView::itemOfObject(const Record& record) {
    const auto serial = content_.serialOfObject(record);
    Row* const row = serial ? rowsBySerial_.find(*serial) : nullptr;
    return row ? itemOf(*row) : nullptr;
}

std::shared_ptr<CollectionViewItem> CollectionView::itemAtRow(std::size_t row) {
    return row < rows_.size() ? itemOf(rows_[row]) : nullptr;
}

const CollectionViewItem* CollectionView::itemToReadAtRow(std::size_t row) const {
    if (row >= rows_.size())
        return nullptr;
    const Row& shown = rows_[row];
    if (shown.item)
        return shown.item.get();
    if (!shared_)
        shared_ = prototype_();
    shared_->representedObject_ = shown.record;
    return shared_.get();
}

RecordSerial CollectionView::serialAtRow(std::size_t row) const {
    return row < rows_.size() ? rows_[row].serial : 0;
}

std::optional<std::size_t> CollectionView::rowOfSerial(RecordSerial serial) const {
    const Row* const row = rowsBySerial_.find(serial);
    return row ? std::optional(rows_.indexOf(*row)) : std::nullopt;
}

Subscription CollectionView::observeRows(RowObserver observer) const {
    return observers_.add(std::move(observer));
}

void CollectionView::contentDidChange(const ListChange& change) {
    switch (change.kind) {
    case ListChange::Kind::Inserted:
        insert(change);
        break;
    case ListChange::Kind::Removed:
        remove(change.serial);
        break;
    case ListChange::Kind::Edited:
        moveToItsPlace(change.serial);
        notify(Kind::Changed, Phase::After, *rowOfSerial(change.serial));
        break;
    case ListChange::Kind::Cleared:
        clear();
        break;
    }
    rowCount_.set(rows_.size());
}

void CollectionView::insert(const ListChange& change) {
    const std::string key = sortKey_ ? sortKey_(*change.record) : std::string();
    auto added = Row::make(key, change.serial, change.record);
    Row& row = *added;
    const Rows::Place place = placeOf(key, row.serial);
    notify(Kind::Inserted, Phase::Before, place.index);
    rows_.insert(place, std::move(added));
    rowsBySerial_.insert(row);
    notify(Kind::Inserted, Phase::After, place.index);
}

void CollectionView::remove(RecordSerial serial) {
    const Row& row = *rowsBySerial_.find(serial);
    const std::size_t place = rows_.indexOf(row);
    notify(Kind::Removed, Phase::Before, place);
    const auto removed = rows_.take(row);
    rowsBySerial_.erase(*removed);
    release(*removed);
    notify(Kind::Removed, Phase::After, place);
}

void CollectionView::moveToItsPlace(RecordSerial serial) {
    if (!sortKey_)
        return;
    Row& row = *rowsBySerial_.find(serial);
    const std::string key = sortKey_(*row.record);
    const std::size_t from = rows_.indexOf(row);
    const std::size_t behind = placeOf(key, serial).index;
    const std::size_t to = behind > from ? behind - 1 : behind;
    if (to != from)
        notify(Kind::Moved, Phase::Before, from, to);
    auto moved = Row::make(key, serial, row.record);
    moved->item = std::move(row.item);
    rowsBySerial_.erase(row);
    rowsBySerial_.insert(*moved);
    static_cast<void>(rows_.take(row));
    rows_.insert(to, std::move(moved));
    if (to != from)
        notify(Kind::Moved, Phase::After, from, to);
}

void CollectionView::clear() {
    notify(Kind::Cleared, Phase::Before, 0);
    const auto gone = std::exchange(rows_, {});
    rowsBySerial_.clear();
    for (const Row& row : gone)
        release(row);
    notify(Kind::Cleared, Phase::After, 0);
}

CollectionView::Rows::Place CollectionView::placeOf(std::string_view key,
                                                    RecordSerial serial) const {
    return rows_.partitionPoint([&](const Row& other) {
        const int order = other.key().compare(key);
        return order != 0 ? order < 0 : other.serial < serial;
    });
}

std::shared_ptr<CollectionViewItem> CollectionView::itemOf(Row& row) {
    if (!row.item) {
        row.item = prototype_();
        row.item->representedObject_ = row.record;
        row.item->serial_ = row.serial;
        row.item->collectionView_ = this;
        if (itemWasMade_)
            itemWasMade_(*row.item);
    }
    return row.item;
}

void CollectionView::notify(Kind kind, Phase phase, std::size_t row, std::size_t to) {
    observers_.notify({kind, phase, row, to});
}

void CollectionView::release(const Row& row) {
    if (row.item)
        row.item->collectionView_ = nullptr;
    if (shared_ && shared_->representedObject_ == row.record)
        shared_->representedObject_ = nullptr;
}

} // namespace zarvil
