#pragma once

#include "platform/Error.h"

namespace zarvil {

/// Shows errors to the user in the application's standard alert.
class ErrorPresenter {
public:
    ErrorPresenter() = default;
    ErrorPresenter(const ErrorPresenter&) = delete;
    ErrorPresenter& operator=(const ErrorPresenter&) = delete;
    virtual ~ErrorPresenter() = default;

    /// Takes the error and returns at once; runs no event loop.
    virtual void presentError(const Error& error) = 0;
};

} // namespace zarvil
