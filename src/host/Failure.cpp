#include "host/Failure.h"

#include "host/Program.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QMessageBox>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace zarvil::host {

namespace {

bool isReadByUser() { return isatty(STDERR_FILENO) != 0; }

bool hasScreenOfUser() {
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

namespace {

/// Qt ends the process where no plug-in serves the display, so that it is looked for before.
bool hasPlatformPlugin(const QString& platform) {
    const QString file = QStringLiteral("libq%1.so").arg(platform);
    QStringList folders = QCoreApplication::libraryPaths();
    folders << QLibraryInfo::path(QLibraryInfo::PluginsPath);
    if (const QString own = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH"); !own.isEmpty())
        folders << own;
    return std::ranges::any_of(folders, [&file](const QString& folder) {
        return QFileInfo::exists(folder + "/platforms/" + file) ||
               QFileInfo::exists(folder + '/' + file);
    });
}

/// The plug-in of a platform that is named after its protocol where the file is not.
QString pluginOf(const QString& platform) {
    const QString name = platform.section(':', 0, 0);
    return name.startsWith(QLatin1String("wayland")) ? QStringLiteral("wayland-generic") : name;
}

bool hasPlugin(const QString& platform) { return hasPlatformPlugin(pluginOf(platform)); }

/// Whether somebody listens at the Wayland socket that the environment names.
bool hasWaylandServer() {
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QString path =
        QDir::isAbsolutePath(name) ? name : qEnvironmentVariable("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray bytes = QFile::encodeName(path);
    if (static_cast<std::size_t>(bytes.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = handle >= 0 && connect(handle, reinterpret_cast<const sockaddr*>(&address),
                                                sizeof address) == 0;
    if (handle >= 0)
        close(handle);
    return answers;
}

/// Qt aborts where the X display is served by nobody, or not to this user.
bool hasXServer() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

bool isServed(const QString& platform) {
    return hasPlugin(platform) &&
           (platform.section(':', 0, 0) != QLatin1String("xcb") || hasXServer());
}

} // namespace

std::optional<QString> displayFault() {
    const auto words = [](const char* text) { return QCoreApplication::translate("Host", text); };
    const QString display = qEnvironmentVariable("DISPLAY");
    const QString unserved =
        words("Nobody serves the display \"%1\", or not to this user.").arg(display);
    const QString wished = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!wished.isEmpty()) {
        const QStringList names = wished.split(';', Qt::SkipEmptyParts);
        if (std::ranges::any_of(names, isServed))
            return std::nullopt;
        if (std::ranges::any_of(names, hasPlugin))
            return unserved;
        return words("No Qt platform plug-in is installed for QT_QPA_PLATFORM=%1.").arg(wished);
    }
    const QString xcb = QStringLiteral("xcb");
    const bool hasXDisplay = !display.isEmpty() && hasPlugin(xcb);
    if (hasXDisplay && isServed(xcb))
        return std::nullopt;
    if (!hasWaylandServer())
        return hasXDisplay ? unserved : words("There is no display to show a window on.");
    if (isServed(QStringLiteral("wayland")))
        return std::nullopt;
    return words("The display is a Wayland one, and Qt's plug-in for it is not installed. "
                 "The package qt6-wayland has it.");
}

void logFailure(const QString& message) {
    std::fprintf(stderr, "zarvil-preferences: %s\n", qPrintable(message));
}

int failUsage(const QString& message) {
    logFailure(message);
    logFailure(QStringLiteral("try --help"));
    return exitCode::usage;
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
