#pragma once

#include "platform/StringTable.h"

#include <QDialog>

class QTabWidget;
class QTextBrowser;

namespace zarvil::qt {

/// Tells about the page of the pane that is shown, and follows when the user turns to another. The
/// pane stays usable beside it.
class HelpWindow final : public QDialog {
    Q_OBJECT

public:
    /// Has the key for help and the view's button "HelpButton" open the window, which is made when
    /// it is first asked for. The view owns all of it; its tabs are "tabView". The strings must
    /// outlive the view.
    static void offer(QWidget& view, const StringTable& strings);
    /// Gives the controls in a part of the view their explanations.
    static void explainControls(const QWidget& part, const StringTable& strings);

    HelpWindow(QWidget& view, const StringTable& strings);
    /// Shows the window, or brings it before the user.
    void present();

private:
    void addButtons(QWidget& view);
    void tellOfTab();

    const StringTable& strings_;
    QTabWidget* tabs_;
    QTextBrowser* text_;
};

} // namespace zarvil::qt
