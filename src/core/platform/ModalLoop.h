#pragma once

#include "protocol/NonCopyable.h"

namespace zarvil {

class Panel;

/// Nested run loops that a panel waits in.
class ModalLoop : NonCopyable {
public:
    virtual ~ModalLoop() = default;

    /// Returns after `stopModal`.
    virtual void runModalForWindow(Panel& panel) = 0;
    /// Ends the innermost loop once the action under way returns; without a loop it does nothing.
    virtual void stopModal() = 0;
};

} // namespace zarvil
