#pragma once

#include "interface/AttributedString.h"

#include <string>
#include <string_view>

namespace zarvil {

/// The look of a link: blue, single-underlined, centred. The address is not used, on purpose: the
/// text carries no link attribute, opening a target is the action's affair.
[[nodiscard]] AttributedString hyperlinkFromString(std::string text, std::string_view url);

} // namespace zarvil
