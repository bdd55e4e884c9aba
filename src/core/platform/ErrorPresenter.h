#pragma once

#include "platform/Error.h"
#include "protocol/NonCopyable.h"

namespace zarvil {

/// Shows errors to the user in the application's standard alert.
class ErrorPresenter : NonCopyable {
public:
    virtual ~ErrorPresenter() = default;

    /// Returns when the user has dismissed the alert.
    virtual void presentError(const Error& error) = 0;
};

} // namespace zarvil
