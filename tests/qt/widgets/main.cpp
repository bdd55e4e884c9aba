#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Listing the tests, as the build does, needs no display either.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
