#pragma once

#import <Foundation/Foundation.h>

#include "protocol/Value.h"

#include <optional>

/// The core's property lists and Foundation's. Objects that are handed out are autoreleased.
namespace zarvil::cocoa {

[[nodiscard]] id toPropertyList(const Value& value);
[[nodiscard]] NSDictionary* toPropertyList(const Dictionary& dictionary);

/// Nothing for an object that is no property list, nil included, and for what is nested deeper
/// than 64 levels.
[[nodiscard]] std::optional<Value> toValue(id object);
/// Leaves out entries whose key is no string or whose value `toValue` does not take.
[[nodiscard]] Dictionary toDictionary(NSDictionary* dictionary);

} // namespace zarvil::cocoa
