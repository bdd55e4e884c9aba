#include <QApplication>

#include <gtest/gtest.h>

/// Runs the tests with an application object and, unless told otherwise, without a screen. No
/// test reaches the user's own bus, settings, language or accessibility services.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANGUAGE", "en");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
