#pragma once

#include <cstddef>
#include <vector>

namespace zarvil::qt {

/// One number a pixel, row by row from the top.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    Plane() = default;
    Plane(int columns, int rows);
    [[nodiscard]] float* row(int y);
    [[nodiscard]] const float* row(int y) const;
};

/// Pixels to either side beyond which a Gaussian of this standard deviation is left out; less than
/// a tenth of a level of 255 is lost there.
[[nodiscard]] int gaussianReach(double standardDeviation);

/// Weights of the pixels from -reach to reach, of sum 1.
[[nodiscard]] std::vector<float> gaussianKernel(double standardDeviation);

/// Blurs with a true Gaussian, along the rows and then along the columns. Outside is zero.
[[nodiscard]] Plane gaussianBlur(const Plane& source, double standardDeviation);

} // namespace zarvil::qt
