#include "qt/canvas/GaussianBlur.h"

#include <algorithm>
#include <cmath>

namespace zarvil::qt {

Plane::Plane(int columns, int rows)
    : width(columns),
      height(rows),
      values(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

float* Plane::row(int y) {
    return values.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
}

const float* Plane::row(int y) const {
    return values.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
}

int gaussianReach(double standardDeviation) {
    return standardDeviation > 0 ? static_cast<int>(std::ceil(4 * standardDeviation)) : 0;
}

std::vector<float> gaussianKernel(double standardDeviation) {
    const int reach = gaussianReach(standardDeviation);
    std::vector<double> weights;
    double sum = 0;
    for (int x = -reach; x <= reach; ++x) {
        const double distance = reach > 0 ? x / standardDeviation : 0;
        weights.push_back(std::exp(-distance * distance / 2));
        sum += weights.back();
    }
    std::vector<float> kernel;
    for (const double weight : weights)
        kernel.push_back(static_cast<float>(weight / sum));
    return kernel;
}

namespace {

void addScaled(float* target, const float* source, int count, float factor) {
    for (int x = 0; x < count; ++x)
        target[x] += factor * source[x];
}

} // namespace

Plane gaussianBlur(const Plane& source, double standardDeviation) {
    const std::vector<float> kernel = gaussianKernel(standardDeviation);
    const int reach = gaussianReach(standardDeviation);
    const int width = source.width;
    Plane along(width, source.height);
    for (int y = 0; y < source.height; ++y)
        for (int offset = -reach; offset <= reach; ++offset) {
            const int first = std::max(0, -offset);
            const int last = std::min(width, width - offset);
            addScaled(along.row(y) + first, source.row(y) + first + offset, last - first,
                      kernel[static_cast<std::size_t>(offset + reach)]);
        }
    Plane blurred(width, source.height);
    for (int y = 0; y < source.height; ++y)
        for (int from = std::max(0, y - reach); from <= std::min(source.height - 1, y + reach);
             ++from)
            addScaled(blurred.row(y), along.row(from), width,
                      kernel[static_cast<std::size_t>(from - y + reach)]);
    return blurred;
}

} // namespace zarvil::qt
