#pragma once

#include <QColor>
#include <QPalette>

namespace zarvil::qt {

/// How well one opaque color stands out from another, from 1 (not at all) to 21 (black on white),
/// as the guidelines for accessible web content measure it.
[[nodiscard]] double contrastRatio(const QColor& one, const QColor& other);

/// Whether the desktop's colors are those of a high-contrast theme: text and window almost black
/// and white. Drawn controls then outline what they otherwise only shade.
[[nodiscard]] bool isHighContrast(const QPalette& palette);

} // namespace zarvil::qt
