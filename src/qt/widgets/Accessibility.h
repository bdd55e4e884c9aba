#pragma once

namespace zarvil::qt {

/// Makes the drawn widgets known to assistive technologies. Called by their constructors; only the
/// first call does anything.
void installAccessibility();

} // namespace zarvil::qt
