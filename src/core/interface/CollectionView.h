#pragma once

#include "interface/ArrayController.h"
#include "interface/View.h"
#include "protocol/NonCopyable.h"

#include <functional>
#include <memory>
#include <vector>

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

    void setRepresentedObject(Record record) { representedObject_ = std::move(record); }
    [[nodiscard]] const Record& representedObject() const { return representedObject_; }
    /// Not owned; null before the item stands in a view and after it has left.
    void setCollectionView(CollectionView* view) { collectionView_ = view; }
    [[nodiscard]] CollectionView* collectionView() const { return collectionView_; }

private:
    Record representedObject_;
    CollectionView* collectionView_ = nullptr;
};

/// Shows the arranged objects of an array controller: item i shows record i. Items are made when
/// first asked for and go with their records; whoever calls an item's action that may remove it
/// holds the item meanwhile.
class CollectionView : public View {
public:
    using Prototype = std::function<std::shared_ptr<CollectionViewItem>()>;

    /// The content is not owned and must outlive the view.
    CollectionView(ArrayController& content, Prototype prototype);
    ~CollectionView() override;

    [[nodiscard]] ArrayController& content() const { return content_; }
    /// Not owned.
    void setDelegate(CollectionViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] CollectionViewDelegate* delegate() const { return delegate_; }

    /// Null behind the end.
    std::shared_ptr<CollectionViewItem> itemAtIndex(std::size_t index);
    template <typename Item>
    std::shared_ptr<Item> itemAtIndexAs(std::size_t index) {
        return std::dynamic_pointer_cast<Item>(itemAtIndex(index));
    }

private:
    void contentDidChange(const ListChange& change);
    void release(const std::shared_ptr<CollectionViewItem>& item);

    ArrayController& content_;
    Prototype prototype_;
    CollectionViewDelegate* delegate_ = nullptr;
    std::vector<std::shared_ptr<CollectionViewItem>> items_; ///< null where not yet asked for
    Subscription contentChanges_;
};

} // namespace zarvil
