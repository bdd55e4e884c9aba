#pragma once

#include "interface/ArrayController.h"

#include <string>
#include <string_view>

namespace zarvil {

/// Of the title alone: what scripts are looked up by.
[[nodiscard]] std::size_t scriptHash(const MutableRecord& script);

/// A script's place in a list that is sorted by title.
[[nodiscard]] std::string scriptSortKey(const MutableRecord& script);

/// The first script of exactly this title, in a list that is hashed by `scriptHash`, or null.
[[nodiscard]] Record scriptOfTitle(const ArrayController& scripts, std::string_view title);
/// The same, but null where several have the title.
[[nodiscard]] Record onlyScriptOfTitle(const ArrayController& scripts, std::string_view title);

} // namespace zarvil
