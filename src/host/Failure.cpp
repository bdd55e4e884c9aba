#include "host/Failure.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <algorithm>
#include <array>
#include <cstdio>
#include <unistd.h>

namespace zarvil::host {

namespace {

bool isReadByUser() { return isatty(STDERR_FILENO) != 0; }

bool hasScreenOfUser() {
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

bool hasDisplay() {
    constexpr std::array names{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(names,
                               [](const char* name) { return !qEnvironmentVariableIsEmpty(name); });
}

void logFailure(const QString& message) {
    std::fprintf(stderr, "zarvil-preferences: %s\n", qPrintable(message));
}

void showFailure(const QString& message) {
    logFailure(message);
    if (isReadByUser() || !hasScreenOfUser())
        return;
    QMessageBox box;
    box.setObjectName("failure");
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QCoreApplication::translate("Host", "Preferences"));
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.exec();
}

} // namespace zarvil::host
