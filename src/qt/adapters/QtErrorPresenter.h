#pragma once

#include "platform/ErrorPresenter.h"

namespace zarvil {

/// Shows an error's description in a message box that blocks the application's windows.
class QtErrorPresenter final : public ErrorPresenter {
public:
    void presentError(const Error& error) override;
};

} // namespace zarvil
