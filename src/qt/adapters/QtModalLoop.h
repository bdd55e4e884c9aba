#pragma once

#include "platform/ModalLoop.h"

#include <vector>

class QEventLoop;

namespace zarvil {

/// Nested event loops. Shows nothing: the panel's binding does. Quitting the application ends all
/// of them.
class QtModalLoop final : public ModalLoop {
public:
    void runModalForWindow(Panel& panel) override;
    void stopModal() override;

private:
    std::vector<QEventLoop*> running_; // innermost last
};

} // namespace zarvil
