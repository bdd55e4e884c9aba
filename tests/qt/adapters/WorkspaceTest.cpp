#include "PrivateBus.h"
#include "qt/adapters/BusConnection.h"
#include "qt/adapters/QtWorkspace.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
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
    BusConnection::Connect noBus() const {
        return [] { return QDBusConnection("not connected"); };
    }

    QTemporaryDir folder;
};

TEST_F(QtWorkspaceTest, startsTheExecutableOfABundle) {
    BusConnection session(noBus());
    QtWorkspace workspace(session);
    writeScript("One.app/One", "one");
    writeScript("Two.app/Contents/MacOS/Two", "two");
    writeScript("Both.app/Both", "first");
    writeScript("Both.app/Contents/MacOS/Both", "second");
    writeScript("Plain.app/Plain", "plain", false);
    QDir().mkpath(path("Empty.app/Empty"));
    for (const char* name : {"One.app", "Two.app", "Both.app"})
        EXPECT_TRUE(workspace.launchApplication(path(name).toStdString())) << name;
    for (const char* name : {"Plain.app", "Empty.app", "Missing.app", ""})
        EXPECT_FALSE(workspace.launchApplication(name[0] ? path(name).toStdString() : "")) << name;
    for (const char* effect : {"one", "two", "first"})
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
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", path("data"));
    PrivateBus bus(environment);
    BusConnection session([&bus] { return bus.connect("session"); });
    QtWorkspace workspace(session);
    EXPECT_TRUE(workspace.launchApplication(path("Applications/Zarvil.app").toStdString()));
    EXPECT_TRUE(appears("activated"));
    EXPECT_FALSE(workspace.launchApplication(path("Applications/Other.app").toStdString()));
}

TEST_F(QtWorkspaceTest, listsTheNamesOnTheBusWithTheirProcesses) {
    PrivateBus bus;
    auto other = bus.connect("other");
    ASSERT_TRUE(other.registerService("com.Tessrow.Preferences"));
    ASSERT_TRUE(other.registerService("org.example.Second"));
    BusConnection session([&bus] { return bus.connect("session"); });
    const auto running = QtWorkspace(session).runningApplications();
    std::vector<std::string> names;
    for (const auto& application : running) {
        names.push_back(application.bundleIdentifier);
        EXPECT_EQ(application.processIdentifier, getpid());
    }
    std::ranges::sort(names);
    const std::vector<std::string> expected{"com.Tessrow.Preferences", "org.example.Second"};
    EXPECT_EQ(names, expected);
}

/// Takes connections and never says a word.
class HungBus {
public:
    explicit HungBus(const QString& path) {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        const QByteArray bytes = path.toUtf8();
        std::ranges::copy(bytes, name.sun_path);
        EXPECT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
        EXPECT_EQ(listen(socket_, 5), 0);
    }
    ~HungBus() { close(socket_); }
    HungBus(const HungBus&) = delete;
    HungBus& operator=(const HungBus&) = delete;

private:
    int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

TEST_F(QtWorkspaceTest, aBusThatHangsOrIsAbsentGivesNothingInBoundedTime) {
    HungBus hung(path("bus"));
    const QString address = "unix:path=" + path("bus");
    const BusConnection::Connect connects[] = {
        noBus(), [address] { return QDBusConnection::connectToBus(address, "hung"); }};
    for (const auto& connect : connects) {
        BusConnection session(connect);
        QtWorkspace workspace(session);
        QElapsedTimer timer;
        timer.start();
        EXPECT_TRUE(workspace.runningApplications().empty());
        EXPECT_FALSE(workspace.launchApplication("/nowhere/Applications/Zarvil.app"));
        EXPECT_LT(timer.elapsed(), 4000);
    }
}

TEST_F(QtWorkspaceTest, callsBackOnlyWhileTheCallerLives) {
    PrivateBus bus;
    auto session = std::make_unique<BusConnection>([&bus] { return bus.connect("session"); });
    int answers = 0;
    QObject alive;
    {
        QObject gone;
        session->whenReady(&gone, [&](const QDBusConnection&) { answers += 100; });
    }
    session->whenReady(&alive, [&](const QDBusConnection& connection) {
        EXPECT_TRUE(connection.isConnected());
        ++answers;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answers > 0; }));
    session->whenReady(&alive, [&](const QDBusConnection&) {
        ++answers;
        session.reset(); // from within its own call
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answers > 1; }));
    EXPECT_EQ(answers, 2);
}

TEST_F(QtWorkspaceTest, refusesWhatIsNoAddress) {
    BusConnection session(noBus());
    QtWorkspace workspace(session);
    for (const char* url : {"", "http://[", "%zz://"})
        EXPECT_FALSE(workspace.openURL(url)) << url;
}

} // namespace
} // namespace zarvil
