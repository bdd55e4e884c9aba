#pragma once

#include "protocol/NonCopyable.h"

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

/// Shows errors to the user in the application's standard alert.
class ErrorPresenter : NonCopyable {
public:
    virtual ~ErrorPresenter() = default;

    /// Takes the error and returns at once; runs no event loop.
    virtual void presentError(const Error& error) = 0;
};

} // namespace zarvil
