#pragma once

#include <QPalette>

namespace zarvil::host {

/// How the user wants the desktop to look.
struct Look {
    bool dark = false;
    bool highContrast = false;
    friend bool operator==(const Look&, const Look&) = default;
};

/// A palette with every role and group set, made for the Fusion style.
[[nodiscard]] QPalette paletteFor(const Look& look);

/// Whether text is lighter than what it stands on.
[[nodiscard]] bool isDark(const QPalette& palette);

} // namespace zarvil::host
