#include "qt/pane/PaneView.h"

#include "ui_AboutTab.h"
#include "ui_AlertsTab.h"
#include "ui_DevicesTab.h"
#include "ui_GeneralTab.h"
#include "ui_PaneView.h"
#include "ui_ScriptsTab.h"
#include "ui_UninstallPanel.h"

namespace zarvil::qt {

namespace {

void makeHeading(QLabel& label, double scale) {
    QFont font = label.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * scale);
    label.setFont(font);
}

/// Nothing moves when the widget comes and goes.
void keepRoomWhileHidden(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

/// Starts every time with the keyboard at the harmless button, wherever it was left.
class ConfirmationPanel final : public QDialog {
public:
    using QDialog::QDialog;

protected:
    void showEvent(QShowEvent* event) override {
        if (auto* button = findChild<QPushButton*>("CancelUninstall"))
            button->setFocus();
        QDialog::showEvent(event);
    }
};

} // namespace

PaneView::PaneView(QWidget* parent)
    : QWidget(parent), uninstallPanel_(new ConfirmationPanel(this)) {
    Ui::PaneView frame;
    frame.setupUi(this);
    makeHeading(*frame.ProtectionHeading, 1.15);
    Ui::DevicesTab().setupUi(frame.DevicesTab);
    Ui::GeneralTab().setupUi(frame.GeneralTab);
    Ui::AlertsTab alerts;
    alerts.setupUi(frame.AlertsTab);
    keepRoomWhileHidden(*alerts.pushValidationStatus);
    Ui::ScriptsTab().setupUi(frame.ScriptsTab);
    Ui::AboutTab().setupUi(frame.AboutTab);

    Ui::UninstallPanel panel;
    panel.setupUi(uninstallPanel_);
    makeHeading(*panel.UninstallHeading, 1.15);
    uninstallPanel_->setWindowFlag(Qt::FramelessWindowHint);
    uninstallPanel_->setWindowModality(Qt::ApplicationModal);
}

} // namespace zarvil::qt
