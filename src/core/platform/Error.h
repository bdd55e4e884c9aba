#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zarvil {

/// A failure that the user must see. The description is a whole sentence in plain words.
struct Error {
    std::string domain;
    std::int64_t code = 0;
    std::string description;
    friend bool operator==(const Error&, const Error&) = default;
};

/// The domain of errors that the original platform's frameworks report.
inline constexpr std::string_view cocoaErrorDomain = "NSCocoaErrorDomain";

} // namespace zarvil
