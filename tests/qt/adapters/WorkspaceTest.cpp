#include "PrivateBus.h"
#include "qt/adapters/QtWorkspace.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace zarvil {
namespace {

class QtWorkspaceTest : public testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    void writeScript(const QString& name, const QString& effect, bool executable = true) {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral("#!/bin/sh\necho started > '%1.new'\nmv '%1.new' '%1'\n")
                       .arg(path(effect))
                       .toUtf8());
        if (executable)
            file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    bool appears(const QString& name) const {
        return QTest::qWaitFor([&] { return QFile::exists(path(name)); }, 10'000);
    }

    QTemporaryDir folder;
};

TEST_F(QtWorkspaceTest, startsTheExecutableOfABundleAndRefusesWhatIsNoneOrNoAddress) {
    BusConnection session{BusOptions()};
    QtWorkspace workspace(session);
    writeScript("Two.app/Contents/MacOS/Two", "two");
    writeScript("Both.app/Both", "first");
    writeScript("Both.app/Contents/MacOS/Both", "second");
    writeScript("Plain.app/Plain", "plain", false);
    QDir().mkpath(path("Empty.app/Empty"));
    for (const char* name : {"Two.app", "Both.app"})
        EXPECT_TRUE(workspace.launchApplication(path(name).toStdString())) << name;
    for (const char* name : {"Plain.app", "Empty.app", "Missing.app", ""})
        EXPECT_FALSE(workspace.launchApplication(name[0] ? path(name).toStdString() : "")) << name;
    for (const char* url : {"", "http://[", "%zz://"})
        EXPECT_FALSE(workspace.openURL(url)) << url;
    for (const char* effect : {"two", "first"})
        EXPECT_TRUE(appears(effect)) << effect;
    EXPECT_FALSE(QFile::exists(path("second")));
    EXPECT_FALSE(QFile::exists(path("plain")));
}

TEST_F(QtWorkspaceTest, asksTheBusForAnAgentThatIsNotInstalled) {
    writeScript("agent", "activated");
    QDir().mkpath(path("data/dbus-1/services"));
    QFile service(path("data/dbus-1/services/com.Tessrow.Zarvil.service"));
    ASSERT_TRUE(service.open(QIODevice::WriteOnly));
    service.write("[D-BUS Service]\nName=com.Tessrow.Zarvil\nExec=" + path("agent").toUtf8() +
                  "\n");
    service.close();
    qputenv("XDG_DATA_HOME", path("data").toUtf8());
    PrivateBus bus;
    qunsetenv("XDG_DATA_HOME");
    BusConnection session(bus.options());
    QtWorkspace workspace(session);
    ASSERT_TRUE(session.wait(std::chrono::seconds(2)));
    for (const auto& [application, known] :
         {std::pair("Applications/Zarvil.app", true), std::pair("Applications/Other.app", false)}) {
        EXPECT_EQ(workspace.canLaunchApplication(path(application).toStdString()), known);
        EXPECT_EQ(workspace.launchApplication(path(application).toStdString()), known);
    }
    EXPECT_TRUE(appears("activated"));
}

TEST_F(QtWorkspaceTest, listsTheNamesOnTheBusWithTheirProcesses) {
    PrivateBus bus;
    auto other = bus.connect("other");
    ASSERT_TRUE(other.registerService("com.Tessrow.Preferences"));
    BusConnection session(bus.options());
    const auto running = QtWorkspace(session).runningApplications();
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(running[0].bundleIdentifier, "com.Tessrow.Preferences");
    EXPECT_EQ(running[0].processIdentifier, getpid());
}

TEST_F(QtWorkspaceTest, aBusThatHangsOrIsAbsentGivesNothingInBoundedTime) {
    PrivateBus bus;
    for (const auto& spoil : {&PrivateBus::freeze, &PrivateBus::stop}) {
        (bus.*spoil)();
        BusConnection session(bus.options());
        QtWorkspace workspace(session);
        QElapsedTimer timer;
        timer.start();
        EXPECT_TRUE(workspace.runningApplications().empty());
        EXPECT_FALSE(workspace.launchApplication("/nowhere/Applications/Zarvil.app"));
        EXPECT_LT(timer.elapsed(), 4000);
    }
}

} // namespace
} // namespace zarvil
