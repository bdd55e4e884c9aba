#pragma once

#include "protocol/NonCopyable.h"

#include <cstddef>
#include <vector>

namespace zarvil {

/// Base of what stands in a hash index: the links are the elements' own, so that a look-up in a
/// long list touches the element alone.
template <typename Element>
class Hashed : NonCopyable {
    template <typename>
    friend class HashIndex;
    Element* next_ = nullptr;
};

/// Finds elements, which it does not own, by what their `hashKey()` says: one for each key, and
/// keys whose low bits differ.
template <typename Element>
class HashIndex : NonCopyable {
public:
    /// Null when there is none.
    [[nodiscard]] Element* find(std::size_t key) const {
        Element* element = buckets_.empty() ? nullptr : buckets_[placeOf(key)];
        while (element && element->hashKey() != key)
            element = element->next_;
        return element;
    }
    /// Of a key that no other has.
    void insert(Element& element) {
        if (count_ == buckets_.size())
            grow();
        ++count_;
        link(element);
    }
    void erase(const Element& element) {
        --count_;
        *linkTo(element.hashKey()) = element.next_;
    }
    void clear() {
        buckets_.clear();
        count_ = 0;
    }
    template <typename Callback>
    void forEach(Callback&& callback) const {
        for (const Element* element : buckets_)
            for (; element; element = element->next_)
                callback(*element);
    }

private:
    [[nodiscard]] std::size_t placeOf(std::size_t key) const { return key & (buckets_.size() - 1); }
    [[nodiscard]] Element** linkTo(std::size_t key) {
        Element** link = &buckets_[placeOf(key)];
        while (*link && (*link)->hashKey() != key)
            link = &(*link)->next_;
        return link;
    }
    void link(Element& element) {
        Element*& first = buckets_[placeOf(element.hashKey())];
        element.next_ = first;
        first = &element;
    }
    void grow() {
        constexpr std::size_t fewest = 16; // a power of two, as every later size
        std::vector<Element*> former(buckets_.empty() ? fewest : 2 * buckets_.size());
        former.swap(buckets_);
        for (Element* element : former)
            while (element) {
                Element* const next = element->next_;
                link(*element);
                element = next;
            }
    }

    std::vector<Element*> buckets_;
    std::size_t count_ = 0;
};

} // namespace zarvil
