#include "raster/Mask.h"

#include <algorithm>
#include <utility>

namespace zarvil::raster {

const Mask* ShadowCache::find(const ShadowKey& key) {
    const auto found = std::ranges::find(entries_, key, &Entry::key);
    if (found == entries_.end())
        return nullptr;
    entries_.splice(entries_.begin(), entries_, found);
    return &entries_.front().mask;
}

const Mask& ShadowCache::insert(const ShadowKey& key, Mask mask) {
    bytes_ += mask.bytes();
    entries_.push_front({key, std::move(mask)});
    while (bytes_ > capacity && entries_.size() > 1) {
        bytes_ -= entries_.back().mask.bytes();
        entries_.pop_back();
    }
    return entries_.front().mask;
}

} // namespace zarvil::raster
