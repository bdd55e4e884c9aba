#pragma once

#include <QWidget>

class QDialog;

namespace zarvil::qt {

/// The pane's layout: the protection and the agent's presence above the tabs, the lock below.
/// The confirmation panel is a window of its own that belongs to the view.
class PaneView : public QWidget {
    Q_OBJECT

public:
    explicit PaneView(QWidget* parent = nullptr);

    [[nodiscard]] QDialog* uninstallPanel() const { return uninstallPanel_; }

private:
    QDialog* uninstallPanel_;
};

} // namespace zarvil::qt
