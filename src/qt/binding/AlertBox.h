#pragma once

#include "platform/AlertQueue.h"
#include "protocol/NonCopyable.h"

class QMessageBox;
class QWidget;

namespace zarvil::qt {

/// Shows the alerts of a pane as sheets on the pane's window. No event loop runs for them.
class AlertBox final : NonCopyable {
public:
    /// Both must outlive this.
    AlertBox(AlertQueue& alerts, QWidget& pane);
    ~AlertBox();

private:
    void open(const std::string& text);
    void close();

    AlertQueue& alerts_;
    QWidget& pane_;
    QMessageBox* box_ = nullptr;
    Subscription text_;
};

} // namespace zarvil::qt
