#pragma once

#include "protocol/NonCopyable.h"

#include <algorithm>
#include <cstddef>
#include <memory>
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
/// behind them: they stand in chunks of a bounded size. An index is found by counting chunks, which
/// is cheap up to some hundred thousand elements.
template <typename Element>
class ChunkedList {
    using Chunk = std::vector<std::unique_ptr<Element>>;
    using Chunks = std::vector<std::unique_ptr<Chunk>>;

public:
    class Iterator {
    public:
        using value_type = Element;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        const Element& operator*() const { return *(*(*chunks_)[chunk_])[offset_]; }
        Iterator& operator++() {
            if (++offset_ == (*chunks_)[chunk_]->size()) {
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

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    [[nodiscard]] Iterator begin() const { return Iterator(chunks_, 0); }
    [[nodiscard]] Iterator end() const { return Iterator(chunks_, chunks_.size()); }

    [[nodiscard]] Element& operator[](std::size_t index) const {
        const Place place = placeOf(index);
        return *(*chunks_[place.chunk])[place.offset];
    }
    [[nodiscard]] Element& at(std::size_t index) const {
        if (index >= size_)
            throw std::out_of_range("ChunkedList::at");
        return (*this)[index];
    }
    /// Of an element of this list.
    [[nodiscard]] std::size_t indexOf(const Element& element) const {
        std::size_t index = 0;
        for (const auto& chunk : chunks_) {
            if (chunk.get() == element.chunk_)
                return index + offsetOf(element, *chunk);
            index += chunk->size();
        }
        throw std::logic_error("ChunkedList::indexOf");
    }

    void insert(std::size_t index, std::unique_ptr<Element> element) {
        Place place = placeForInsertion(index);
        if (chunks_[place.chunk]->size() == capacity)
            place = split(place);
        Chunk& chunk = *chunks_[place.chunk];
        element->chunk_ = &chunk;
        chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(element));
        ++size_;
    }
    /// Of an element of this list, whose index need not be known.
    std::unique_ptr<Element> take(const Element& element) {
        Chunk& chunk = *static_cast<Chunk*>(element.chunk_);
        const auto place = chunk.begin() + static_cast<std::ptrdiff_t>(offsetOf(element, chunk));
        std::unique_ptr<Element> taken = std::move(*place);
        chunk.erase(place);
        if (chunk.empty())
            std::erase_if(chunks_, [&](const auto& each) { return each.get() == &chunk; });
        --size_;
        return taken;
    }
    void clear() {
        chunks_.clear();
        size_ = 0;
    }

    /// Index of the first element that is not `before`; those that are must stand in front.
    template <typename Predicate>
    [[nodiscard]] std::size_t partitionPoint(Predicate&& before) const {
        const auto chunk = std::ranges::partition_point(
            chunks_, [&](const auto& candidate) { return before(*candidate->back()); });
        std::size_t index = 0;
        for (auto passed = chunks_.begin(); passed != chunk; ++passed)
            index += (*passed)->size();
        if (chunk == chunks_.end())
            return index;
        const auto found = std::ranges::partition_point(
            **chunk, [&](const auto& candidate) { return before(*candidate); });
        return index + static_cast<std::size_t>(found - (*chunk)->begin());
    }

private:
    struct Place {
        std::size_t chunk;
        std::size_t offset;
    };
    /// Moving half of so many pointers costs about as much as counting the chunks of 10,000.
    static constexpr std::size_t capacity = 256;

    [[nodiscard]] static std::size_t offsetOf(const Element& element, const Chunk& chunk) {
        const std::unique_ptr<Element>* found = chunk.data();
        while (found->get() != &element)
            ++found;
        return static_cast<std::size_t>(found - chunk.data());
    }
    [[nodiscard]] Place placeOf(std::size_t index) const {
        std::size_t chunk = 0;
        while (index >= chunks_[chunk]->size())
            index -= chunks_[chunk++]->size();
        return {chunk, index};
    }
    Place placeForInsertion(std::size_t index) {
        if (index < size_)
            return placeOf(index);
        if (chunks_.empty() || chunks_.back()->size() == capacity)
            chunks_.push_back(newChunk());
        return {chunks_.size() - 1, chunks_.back()->size()};
    }
    [[nodiscard]] static std::unique_ptr<Chunk> newChunk() {
        auto chunk = std::make_unique<Chunk>();
        chunk->reserve(capacity);
        return chunk;
    }
    Place split(Place place) {
        auto upper = newChunk();
        Chunk& lower = *chunks_[place.chunk];
        const auto middle = lower.begin() + static_cast<std::ptrdiff_t>(capacity / 2);
        for (auto moved = middle; moved != lower.end(); ++moved) {
            (*moved)->chunk_ = upper.get();
            upper->push_back(std::move(*moved));
        }
        lower.erase(middle, lower.end());
        chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk + 1),
                       std::move(upper));
        if (place.offset <= capacity / 2)
            return place;
        return {place.chunk + 1, place.offset - capacity / 2};
    }

    Chunks chunks_; ///< none is empty
    std::size_t size_ = 0;
};

} // namespace zarvil
