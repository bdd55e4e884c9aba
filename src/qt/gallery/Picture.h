#pragma once

#include "Cases.h"

#include <QImage>

namespace zarvil::gallery {

/// A case with so many pixels a point, on nothing. Kept with 16 bits a channel up to the last
/// step, so that nothing else rounds.
[[nodiscard]] QImage picture(const Case& shown, int scale);

} // namespace zarvil::gallery
