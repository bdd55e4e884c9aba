#pragma once

#include "platform/Error.h"
#include "protocol/NonCopyable.h"

namespace zarvil {

/// Shows errors to the user in the application's standard alert.
class ErrorPresenter : NonCopyable {
public:
    virtual ~ErrorPresenter() = default;

    /// Takes the error and returns at once; runs no event loop.
    virtual void presentError(const Error& error) = 0;
};

} // namespace zarvil
