#pragma once

#include "protocol/Value.h"

namespace zarvil::agent {

/// The verdict on a Pushover check by the form of its IDs alone: a user ID has 30 letters or
/// digits, a device ID, if any, 1 to 25 letters, digits, "_" or "-".
[[nodiscard]] int verdictByForm(const Dictionary& request);

} // namespace zarvil::agent
