#pragma once

#include "protocol/NonCopyable.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <utility>
#include <vector>

namespace zarvil {

/// Base of what stands in a chunked list. It knows its chunk, so that its index is found without
/// looking at its neighbors, which lie all over the memory.
class Chunked : NonCopyable {
    template <typename Element>
    friend class ChunkedList;
    void* chunk_ = nullptr;
};

/// A sequence that owns its elements, and takes and gives them anywhere without moving everything
/// behind them: they stand in chunks of a bounded size. An index is found by adding up the sizes of
/// the chunks before, which is cheap up to some hundred thousand elements.
template <typename Element>
class ChunkedList {
    struct Chunk : NonCopyable {
        ~Chunk() {
            for (Element* element : elements)
                delete element;
        }
        std::vector<Element*> elements; ///< owned; plain, so that they are moved in one go
        std::size_t number = 0;         ///< of the chunk
    };
    using Chunks = std::vector<std::unique_ptr<Chunk>>;

public:
    class Iterator {
    public:
        using value_type = Element;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        const Element& operator*() const { return *(*chunks_)[chunk_]->elements[offset_]; }
        Iterator& operator++() {
            if (++offset_ == (*chunks_)[chunk_]->elements.size()) {
                ++chunk_;
                offset_ = 0;
            }
            return *this;
        }
        Iterator operator++(int) {
            Iterator former = *this;
            ++*this;
            return former;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        friend class ChunkedList;
        Iterator(const Chunks& chunks, std::size_t chunk) : chunks_(&chunks), chunk_(chunk) {}

        const Chunks* chunks_ = nullptr;
        std::size_t chunk_ = 0;
        std::size_t offset_ = 0;
    };

    /// Where an element stands or would stand; holds until the list changes.
    struct Place {
        std::size_t index;
        std::size_t chunk;
        std::size_t offset; ///< in the chunk
    };

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    [[nodiscard]] Iterator begin() const { return Iterator(chunks_, 0); }
    [[nodiscard]] Iterator end() const { return Iterator(chunks_, chunks_.size()); }

    [[nodiscard]] Element& operator[](std::size_t index) const {
        const Place place = placeOf(index);
        return *chunks_[place.chunk]->elements[place.offset];
    }
    [[nodiscard]] Element& at(std::size_t index) const {
        if (index >= size_)
            throw std::out_of_range("ChunkedList::at");
        return (*this)[index];
    }
    /// Of an element of this list.
    [[nodiscard]] std::size_t indexOf(const Element& element) const {
        const Chunk& chunk = *static_cast<const Chunk*>(element.chunk_);
        return countBefore(chunk.number) + offsetOf(element, chunk);
    }

    void insert(std::size_t index, std::unique_ptr<Element> element) {
        insert(index < size_ ? placeOf(index) : lastPlace(), std::move(element));
    }
    void insert(Place place, std::unique_ptr<Element> element) {
        if (place.chunk == chunks_.size())
            addChunk(place.chunk);
        else if (sizes_[place.chunk] == capacity)
            place = split(place);
        Chunk& chunk = *chunks_[place.chunk];
        element->chunk_ = &chunk;
        chunk.elements.insert(chunk.elements.begin() + static_cast<std::ptrdiff_t>(place.offset),
                              element.get());
        static_cast<void>(element.release());
        ++sizes_[place.chunk];
        ++size_;
    }
    /// Of an element of this list, whose index need not be known.
    std::unique_ptr<Element> take(const Element& element) {
        Chunk& chunk = *static_cast<Chunk*>(element.chunk_);
        const auto place =
            chunk.elements.begin() + static_cast<std::ptrdiff_t>(offsetOf(element, chunk));
        std::unique_ptr<Element> taken(*place);
        chunk.elements.erase(place);
        if (--sizes_[chunk.number] == 0)
            dropChunk(chunk.number);
        --size_;
        return taken;
    }
    void clear() {
        chunks_.clear();
        sizes_.clear();
        size_ = 0;
    }

    /// Of the first element that is not `before`; those that are must stand in front.
    template <typename Predicate>
    [[nodiscard]] Place partitionPoint(Predicate&& before) const {
        const auto found = std::ranges::partition_point(
            chunks_, [&](const auto& candidate) { return before(*candidate->elements.back()); });
        if (found == chunks_.end())
            return lastPlace();
        const auto chunk = static_cast<std::size_t>(found - chunks_.begin());
        const auto& elements = (*found)->elements;
        const auto place = std::ranges::partition_point(
            elements, [&](const Element* candidate) { return before(*candidate); });
        const auto offset = static_cast<std::size_t>(place - elements.begin());
        return {countBefore(chunk) + offset, chunk, offset};
    }

private:
    /// Looking through half of so many pointers costs about as much as adding up the sizes of the
    /// chunks of 10,000.
    static constexpr std::size_t capacity = 128;

    [[nodiscard]] std::size_t countBefore(std::size_t chunk) const {
        return std::accumulate(sizes_.begin(), sizes_.begin() + static_cast<std::ptrdiff_t>(chunk),
                               std::uint32_t{0});
    }
    [[nodiscard]] static std::size_t offsetOf(const Element& element, const Chunk& chunk) {
        const auto found = std::ranges::find(chunk.elements, &element);
        return static_cast<std::size_t>(found - chunk.elements.begin());
    }
    [[nodiscard]] Place placeOf(std::size_t index) const {
        std::size_t chunk = 0;
        std::size_t offset = index;
        while (offset >= sizes_[chunk])
            offset -= sizes_[chunk++];
        return {index, chunk, offset};
    }
    /// Behind all, in a chunk that may have yet to be made.
    [[nodiscard]] Place lastPlace() const {
        if (chunks_.empty() || sizes_.back() == capacity)
            return {size_, chunks_.size(), 0};
        return {size_, chunks_.size() - 1, sizes_.back()};
    }
    Place split(Place place) {
        addChunk(place.chunk + 1);
        Chunk& upper = *chunks_[place.chunk + 1];
        auto& elements = chunks_[place.chunk]->elements;
        const auto middle = elements.begin() + static_cast<std::ptrdiff_t>(capacity / 2);
        upper.elements.assign(middle, elements.end());
        for (Element* moved : upper.elements)
            moved->chunk_ = &upper;
        elements.erase(middle, elements.end());
        sizes_[place.chunk] = sizes_[place.chunk + 1] = capacity / 2;
        if (place.offset <= capacity / 2)
            return place;
        return {place.index, place.chunk + 1, place.offset - capacity / 2};
    }
    void addChunk(std::size_t number) {
        const auto place = static_cast<std::ptrdiff_t>(number);
        auto chunk = std::make_unique<Chunk>();
        chunk->elements.reserve(capacity);
        chunks_.insert(chunks_.begin() + place, std::move(chunk));
        sizes_.insert(sizes_.begin() + place, 0);
        numberFrom(number);
    }
    void dropChunk(std::size_t number) {
        const auto place = static_cast<std::ptrdiff_t>(number);
        chunks_.erase(chunks_.begin() + place);
        sizes_.erase(sizes_.begin() + place);
        numberFrom(number);
    }
    void numberFrom(std::size_t number) {
        for (; number < chunks_.size(); ++number)
            chunks_[number]->number = number;
    }

    Chunks chunks_;                    ///< none is empty
    std::vector<std::uint32_t> sizes_; ///< of the chunks
    std::size_t size_ = 0;
};

} // namespace zarvil
