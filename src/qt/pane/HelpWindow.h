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
    /// Opens with the key for help and with the button "HelpButton" of the view, and gives the
    /// view's controls their explanations. The view, which owns it, has its tabs in "tabView".
    HelpWindow(QWidget& view, const StringTable& strings);

    /// Shows the window, or brings it before the user.
    void present();

private:
    void tellOfTab();
    void explainControls() const;

    QWidget& view_;
    const StringTable& strings_;
    QTabWidget* tabs_;
    QTextBrowser* text_;
};

} // namespace zarvil::qt
