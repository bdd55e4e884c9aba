#pragma once

#include "interface/ArrayController.h"
#include "interface/ChunkedList.h"
#include "interface/HashIndex.h"
#include "interface/View.h"
#include "protocol/NonCopyable.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zarvil {

class CollectionView;

/// Base of what a collection view tells its delegate; the delegate offers capabilities beside it.
class CollectionViewDelegate : NonCopyable {
public:
    virtual ~CollectionViewDelegate() = default;
};

/// The controller of one cell of a collection view.
class CollectionViewItem : NonCopyable {
public:
    virtual ~CollectionViewItem() = default;

    [[nodiscard]] const Record& representedObject() const { return representedObject_; }
    /// Not owned; null before the item stands in a view and after it has left.
    [[nodiscard]] CollectionView* collectionView() const { return collectionView_; }

protected:
    /// Has the view tell its observers that this item's row looks different.
    void appearanceDidChange();

private:
    friend class CollectionView;
    Record representedObject_;
    RecordSerial serial_ = 0;
    CollectionView* collectionView_ = nullptr;
};

/// How the rows of a collection view change. Told twice, before and after, but for `Changed`.
struct RowChange {
    enum class Kind : std::uint8_t { Inserted, Removed, Moved, Changed, Cleared };
    enum class Phase : std::uint8_t { Before, After };
    Kind kind;
    Phase phase;
    std::size_t row = 0;
    std::size_t to = 0; ///< of a row that moved: its row afterwards
};

/// Shows the arranged objects of an array controller. It is the one list that front ends observe:
/// they keep no copy of it. Items are made when first asked for and go with their records; whoever
/// calls an item's action that may remove it holds the item meanwhile.
///
/// Rows are what the user sees, from top to bottom, sorted where the view has an order; the
/// indices of the arranged objects are not concerned by that.
class CollectionView : public View {
public:
    using Prototype = std::function<std::shared_ptr<CollectionViewItem>()>;
    /// What a record is sorted by for display; records of one key stand in the order of their
    /// addition, and without this all do.
    using SortKey = std::string (*)(const MutableRecord&);
    using RowObserver = std::function<void(const RowChange&)>;
    using ItemObserver = std::function<void(CollectionViewItem&)>;

    /// The content is not owned and must outlive the view.
    CollectionView(ArrayController& content, Prototype prototype, SortKey sortKey = nullptr);
    ~CollectionView() override;

    [[nodiscard]] ArrayController& content() const { return content_; }
    /// Not owned.
    void setDelegate(CollectionViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] CollectionViewDelegate* delegate() const { return delegate_; }

    /// Told of every item that is made, before anybody else sees it.
    void setItemWasMade(ItemObserver itemWasMade) { itemWasMade_ = std::move(itemWasMade); }

    /// The item of an arranged object. Null behind the end, and while the content is ahead of the
    /// rows within one change.
    std::shared_ptr<CollectionViewItem> itemAtIndex(std::size_t index);
    template <typename Item>
    std::shared_ptr<Item> itemAtIndexAs(std::size_t index) {
        return std::dynamic_pointer_cast<Item>(itemAtIndex(index));
    }

    /// The item of the first arranged object of contents equal to those of this one, or null.
    std::shared_ptr<CollectionViewItem> itemOfObject(const Record& record);
    template <typename Item>
    std::shared_ptr<Item> itemOfObjectAs(const Record& record) {
        return std::dynamic_pointer_cast<Item>(itemOfObject(record));
    }

    /// The items that were asked for so far, by row.
    template <typename Item, typename Callback>
    void forEachMadeItem(Callback&& callback) const {
        for (const Row& row : rows_)
            if (const auto* item = dynamic_cast<const Item*>(row.item.get()))
                callback(*item);
    }

    [[nodiscard]] std::size_t rowCount() const { return rows_.size(); }
    /// Null behind the end.
    std::shared_ptr<CollectionViewItem> itemAtRow(std::size_t row);
    template <typename Item>
    std::shared_ptr<Item> itemAtRowAs(std::size_t row) {
        return std::dynamic_pointer_cast<Item>(itemAtRow(row));
    }
    /// An item that shows the row, to be read at once: the row's own if it was asked for before,
    /// else one that all others share, for whoever reads thousands. Null behind the end.
    [[nodiscard]] const CollectionViewItem* itemToReadAtRow(std::size_t row) const;
    /// Tells a row apart while its number shifts; 0 behind the end.
    [[nodiscard]] RecordSerial serialAtRow(std::size_t row) const;
    [[nodiscard]] std::optional<std::size_t> rowOfSerial(RecordSerial serial) const;

    /// The rows that are there are not replayed: they can be read.
    Subscription observeRows(RowObserver observer) const;
    [[nodiscard]] const Property<std::size_t>& rowCountProperty() const { return rowCount_; }

private:
    friend class CollectionViewItem;
    /// Its sort key stands behind it in the same memory, for which reason it is made by `make`
    /// alone.
    struct Row final : Chunked, Hashed<Row> {
        static std::unique_ptr<Row> make(std::string_view key, RecordSerial serial, Record record);
        // What `make` asks for is more than a plain new would.
        // NOLINTNEXTLINE(misc-new-delete-overloads)
        static void operator delete(void* memory) { ::operator delete(memory); }
        [[nodiscard]] std::size_t hashKey() const { return serial; }
        [[nodiscard]] std::string_view key() const {
            return {reinterpret_cast<const char*>(this + 1), keyLength};
        }

        RecordSerial serial;
        Record record;
        std::shared_ptr<CollectionViewItem> item; ///< null where not yet asked for
        std::size_t keyLength;

    private:
        Row(std::size_t length, RecordSerial ownSerial, Record shown)
            : serial(ownSerial), record(std::move(shown)), keyLength(length) {}
    };
    using Rows = ChunkedList<Row>;

    void contentDidChange(const ListChange& change);
    void insert(const ListChange& change);
    void remove(RecordSerial serial);
    void moveToItsPlace(RecordSerial serial);
    void clear();
    [[nodiscard]] Rows::Place placeOf(std::string_view key, RecordSerial serial) const;
    std::shared_ptr<CollectionViewItem> itemOf(Row& row);
    void notify(RowChange::Kind kind, RowChange::Phase phase, std::size_t row, std::size_t to = 0);
    void release(const Row& row);

    ArrayController& content_;
    Prototype prototype_;
    SortKey sortKey_;
    ItemObserver itemWasMade_;
    mutable std::shared_ptr<CollectionViewItem> shared_; ///< null where not yet asked for
    CollectionViewDelegate* delegate_ = nullptr;
    Rows rows_; ///< by key, then serial
    HashIndex<Row> rowsBySerial_;
    Property<std::size_t> rowCount_;
    mutable ObserverList<const RowChange&> observers_;
    Subscription contentChanges_;
};

} // namespace zarvil
