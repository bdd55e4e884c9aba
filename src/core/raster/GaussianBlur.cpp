#include "raster/GaussianBlur.h"

#include <algorithm>
#include <cmath>

namespace zarvil::raster {

void Plane::reset(int columns, int rows) {
    width = columns;
    height = rows;
    values.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), 0);
}

float* Plane::row(int y) {
    return values.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
}

const float* Plane::row(int y) const {
    return values.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
}

int gaussianReach(double standardDeviation) {
    if (!(standardDeviation > 0))
        return 0;
    return static_cast<int>(std::ceil(4 * std::min(standardDeviation, GaussianBlur::maxDeviation)));
}

namespace {

void setKernel(std::vector<float>& kernel, double deviation, int reach) {
    kernel.clear();
    double sum = 0;
    for (int x = -reach; x <= reach; ++x) {
        const double distance = x / deviation;
        kernel.push_back(static_cast<float>(std::exp(-distance * distance / 2)));
        sum += static_cast<double>(kernel.back());
    }
    for (float& weight : kernel)
        weight = static_cast<float>(static_cast<double>(weight) / sum);
}

void addScaled(float* target, const float* source, int count, float factor) {
    for (int x = 0; x < count; ++x)
        target[x] += factor * source[x];
}

} // namespace

void GaussianBlur::apply(Plane& plane, double standardDeviation, const PixelRect& window) {
    const int reach = gaussianReach(standardDeviation);
    if (reach == 0 || window.isEmpty())
        return;
    setKernel(kernel_, std::min(standardDeviation, maxDeviation), reach);
    const float* const weights = kernel_.data() + reach; // by the distance, which may be negative
    const int top = std::max(0, window.y - reach);
    const int bottom = std::min(plane.height, window.bottom() + reach);
    along_.reset(plane.width, plane.height);
    for (int y = top; y < bottom; ++y)
        for (int offset = -reach; offset <= reach; ++offset) {
            const int first = std::max(window.x, -offset);
            const int last = std::min(window.right(), plane.width - offset);
            addScaled(along_.row(y) + first, plane.row(y) + first + offset, last - first,
                      weights[offset]);
        }
    for (int y = window.y; y < window.bottom(); ++y) {
        float* row = plane.row(y) + window.x;
        std::fill_n(row, window.width, 0.0F);
        for (int from = std::max(top, y - reach); from <= std::min(bottom - 1, y + reach); ++from)
            addScaled(row, along_.row(from) + window.x, window.width, weights[from - y]);
    }
}

} // namespace zarvil::raster
