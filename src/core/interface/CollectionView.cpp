#include "interface/CollectionView.h"

namespace zarvil {

CollectionView::CollectionView(ArrayController& content, Prototype prototype)
    : content_(content),
      prototype_(std::move(prototype)),
      contentChanges_(
          content.observe([this](const ListChange& change) { contentDidChange(change); })) {}

CollectionView::~CollectionView() {
    for (const auto& item : items_)
        release(item);
}

std::shared_ptr<CollectionViewItem> CollectionView::itemAtIndex(std::size_t index) {
    if (index >= items_.size())
        return nullptr;
    auto& item = items_[index];
    if (!item) {
        item = prototype_();
        item->setRepresentedObject(content_.arrangedObjects()[index]);
        item->setCollectionView(this);
    }
    return item;
}

void CollectionView::contentDidChange(const ListChange& change) {
    const auto offset = static_cast<std::ptrdiff_t>(change.index);
    switch (change.kind) {
    case ListChange::Kind::Inserted:
        items_.insert(items_.begin() + offset, nullptr);
        break;
    case ListChange::Kind::Removed:
        release(items_[change.index]);
        items_.erase(items_.begin() + offset);
        break;
    case ListChange::Kind::Cleared:
        for (const auto& item : items_)
            release(item);
        items_.clear();
        break;
    }
}

void CollectionView::release(const std::shared_ptr<CollectionViewItem>& item) {
    if (item)
        item->setCollectionView(nullptr);
}

} // namespace zarvil
