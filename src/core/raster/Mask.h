#pragma once

#include "raster/Blend.h"

#include <array>
#include <cstddef>
#include <list>
#include <vector>

namespace zarvil::raster {

/// Coverage of some pixels, of those of `area` alone.
struct Mask {
    PixelRect area;
    std::vector<Coverage> values;

    /// Becomes zeros. Memory is kept for a later area.
    void reset(const PixelRect& pixels) {
        area = pixels;
        values.assign(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height),
                      0);
    }
    /// The values of a row from the area's left edge on; y is that of the area's coordinates.
    [[nodiscard]] Coverage* row(int y) { return values.data() + offset(y); }
    [[nodiscard]] const Coverage* row(int y) const { return values.data() + offset(y); }
    [[nodiscard]] std::size_t bytes() const { return values.size() * sizeof(Coverage); }

private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(y - area.y) * static_cast<std::size_t>(area.width);
    }
};

/// Numbers that tell one shape's shadow from another's, whatever whole pixel it stands at.
using ShadowKey = std::array<double, 9>;

/// The shadows drawn most recently, as blurring is what drawing a control mostly costs. They stand
/// relative to their shapes, for an opaque one, without colour.
class ShadowCache {
public:
    /// Enough for all that a switch casts while its knob is dragged.
    static constexpr std::size_t capacity = std::size_t{1} << 20;

    /// Nothing if it is not there; holds until the next is inserted.
    [[nodiscard]] const Mask* find(const ShadowKey& key);
    const Mask& insert(const ShadowKey& key, Mask mask);

private:
    struct Entry {
        ShadowKey key;
        Mask mask;
    };
    std::list<Entry> entries_; ///< the latest first
    std::size_t bytes_ = 0;
};

} // namespace zarvil::raster
