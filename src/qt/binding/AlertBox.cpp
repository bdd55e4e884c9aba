#include "qt/binding/AlertBox.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace zarvil::qt {

AlertBox::AlertBox(AlertQueue& alerts, QWidget& pane)
    : alerts_(alerts),
      pane_(pane),
      text_(
          alerts.textProperty().observe([this](const std::optional<std::string>& text, Transition) {
              close();
              if (text)
                  open(*text);
          })) {}

AlertBox::~AlertBox() { close(); }

void AlertBox::open(const std::string& text) {
    box_ = new QMessageBox(&pane_);
    box_->setObjectName("errorAlert");
    box_->setWindowTitle(pane_.window()->windowTitle());
    box_->setIcon(QMessageBox::Warning);
    box_->setTextFormat(Qt::PlainText);
    box_->setText(QString::fromUtf8(text));
    box_->addButton(QString::fromUtf8(alerts_.buttonTitle()), QMessageBox::AcceptRole);
    QObject::connect(box_, &QMessageBox::finished, box_, [this] { alerts_.dismiss(); });
    box_->open();
}

void AlertBox::close() {
    auto* box = std::exchange(box_, nullptr);
    if (!box)
        return;
    // Later, for its own signal may have led here. It still tells Qt's accessibility of its end.
    box->blockSignals(true);
    box->hide();
    box->deleteLater();
}

} // namespace zarvil::qt
