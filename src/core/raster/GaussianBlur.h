#pragma once

#include "raster/Bitmap.h"

#include <cstddef>
#include <vector>

namespace zarvil::raster {

/// One number a pixel, row by row from the top.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    /// Becomes zeros of this size. Memory is kept for a later one.
    void reset(int columns, int rows);
    [[nodiscard]] float* row(int y);
    [[nodiscard]] const float* row(int y) const;
};

/// Pixels to either side beyond which a Gaussian of this standard deviation is left out; less than
/// a tenth of a level of 255 is lost there.
[[nodiscard]] int gaussianReach(double standardDeviation);

/// Blurs with a true Gaussian, along the rows and then along the columns.
class GaussianBlur {
public:
    /// In pixels; larger deviations are taken for this one, so that no drawing takes for ever.
    static constexpr double maxDeviation = 64;

    /// Outside the plane is zero. Only the window, which lies inside, holds the result.
    void apply(Plane& plane, double standardDeviation, const PixelRect& window);

private:
    Plane along_;
    std::vector<float> kernel_; ///< weights of the pixels from -reach to reach, of sum 1
};

} // namespace zarvil::raster
