#pragma once

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

namespace zarvil {

/// A sequence that takes and gives elements anywhere without moving everything behind them: they
/// stand in chunks of a bounded size. An index is found by counting chunks, which is cheap up to
/// some hundred thousand elements.
template <typename Element>
class ChunkedList {
    using Chunk = std::vector<Element>;

public:
    class Iterator {
    public:
        using value_type = Element;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        const Element& operator*() const { return (*chunks_)[chunk_][offset_]; }
        Iterator& operator++() {
            if (++offset_ == (*chunks_)[chunk_].size()) {
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
        Iterator(const std::vector<Chunk>& chunks, std::size_t chunk)
            : chunks_(&chunks), chunk_(chunk) {}

        const std::vector<Chunk>* chunks_ = nullptr;
        std::size_t chunk_ = 0;
        std::size_t offset_ = 0;
    };

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    [[nodiscard]] Iterator begin() const { return Iterator(chunks_, 0); }
    [[nodiscard]] Iterator end() const { return Iterator(chunks_, chunks_.size()); }

    [[nodiscard]] const Element& operator[](std::size_t index) const {
        const Place place = placeOf(index);
        return chunks_[place.chunk][place.offset];
    }
    [[nodiscard]] const Element& at(std::size_t index) const {
        if (index >= size_)
            throw std::out_of_range("ChunkedList::at");
        return (*this)[index];
    }

    void insert(std::size_t index, Element element) {
        Place place = placeForInsertion(index);
        if (chunks_[place.chunk].size() == capacity)
            place = split(place);
        Chunk& chunk = chunks_[place.chunk];
        chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(element));
        ++size_;
    }
    Element take(std::size_t index) {
        const Place place = placeOf(index);
        Chunk& chunk = chunks_[place.chunk];
        Element element = std::move(chunk[place.offset]);
        chunk.erase(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset));
        if (chunk.empty())
            chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk));
        --size_;
        return element;
    }
    void clear() {
        chunks_.clear();
        size_ = 0;
    }

    /// Index of the first element that is not `before`; those that are must stand in front.
    template <typename Predicate>
    [[nodiscard]] std::size_t partitionPoint(Predicate&& before) const {
        const auto chunk = std::ranges::partition_point(
            chunks_, [&](const Chunk& candidate) { return before(candidate.back()); });
        std::size_t index = 0;
        for (auto passed = chunks_.begin(); passed != chunk; ++passed)
            index += passed->size();
        if (chunk == chunks_.end())
            return index;
        const auto found = std::ranges::partition_point(*chunk, before);
        return index + static_cast<std::size_t>(found - chunk->begin());
    }

private:
    struct Place {
        std::size_t chunk;
        std::size_t offset;
    };
    /// Moving half of so many pointers costs about as much as counting the chunks of 10,000.
    static constexpr std::size_t capacity = 256;

    [[nodiscard]] Place placeOf(std::size_t index) const {
        std::size_t chunk = 0;
        while (index >= chunks_[chunk].size())
            index -= chunks_[chunk++].size();
        return {chunk, index};
    }
    Place placeForInsertion(std::size_t index) {
        if (index < size_)
            return placeOf(index);
        if (chunks_.empty() || chunks_.back().size() == capacity)
            chunks_.emplace_back().reserve(capacity);
        return {chunks_.size() - 1, chunks_.back().size()};
    }
    Place split(Place place) {
        Chunk upper;
        upper.reserve(capacity);
        Chunk& lower = chunks_[place.chunk];
        const auto middle = lower.begin() + static_cast<std::ptrdiff_t>(capacity / 2);
        std::move(middle, lower.end(), std::back_inserter(upper));
        lower.erase(middle, lower.end());
        chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk + 1),
                       std::move(upper));
        if (place.offset <= capacity / 2)
            return place;
        return {place.chunk + 1, place.offset - capacity / 2};
    }

    std::vector<Chunk> chunks_; ///< none is empty
    std::size_t size_ = 0;
};

} // namespace zarvil
