#include "qt/adapters/QtErrorPresenter.h"

#include <QApplication>
#include <QMessageBox>

namespace zarvil {

void QtErrorPresenter::presentError(const Error& error) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName("errorAlert");
    box.setWindowModality(Qt::ApplicationModal);
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(error.description.empty()
                    ? QCoreApplication::translate("QtErrorPresenter",
                                                  "The operation could not be completed.")
                    : QString::fromUtf8(error.description));
    box.exec();
}

} // namespace zarvil
