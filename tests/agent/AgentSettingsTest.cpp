#include "AgentHarness.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <sys/resource.h>

namespace zarvil::agent {
namespace {

class Settings : public AgentHarness {
protected:
    void writeFile(const QByteArray& contents) {
        QFile file(settingsFile());
        ASSERT_TRUE(QDir().mkpath(folder.filePath("a")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(contents), contents.size());
    }
    QStringList filesBeside() { return QDir(folder.filePath("a")).entryList(QDir::Files); }
};

TEST_F(Settings, everyOneOfItsTypeSurvivesARestart) {
    Dictionary expected;
    for (const setting::Description& known : setting::table) {
        if (known.key == setting::testing)
            continue;
        const Value value = known.type == setting::Type::Boolean   ? Value(true)
                            : known.type == setting::Type::Seconds ? Value(12345)
                                                                   : Value("Text für 電源");
        change(known.key, value);
        expected.setObject(known.key, value);
    }
    restart();
    expected.setObject(setting::testing, false);
    EXPECT_EQ(reported(), expected);
    change(setting::emailAddress, "");
    restart();
    EXPECT_EQ(*reported().stringForKey(setting::emailAddress), "");
}

TEST_F(Settings, ofAnUnknownKeyOrAWrongTypeAreDropped) {
    const Dictionary before = reported();
    change("NoSuchSetting", true);
    change("SavedDevices", Array{});
    change(setting::testing, true);
    change(setting::launchAtLogin, "YES");
    change(setting::launchAtLogin, 2);
    change(setting::shutdownDelay, 1.5);
    change(setting::shutdownDelay, "60");
    EXPECT_EQ(reported(), before);
    change(setting::launchAtLogin, 1);
    EXPECT_TRUE(*reported().objectForKey(setting::launchAtLogin)->as<bool>());
}

TEST_F(Settings, ofAFileThatCannotBeReadAreKeptAside) {
    const std::vector<QByteArray> corrupt{
        "", "no JSON", QByteArray("\0\xff\xfe", 3), "[]", "{\"a\":", QByteArray(10'000, '['),
    };
    qsizetype kept = 0;
    for (const QByteArray& contents : corrupt) {
        agent.reset();
        writeFile(contents);
        start();
        EXPECT_TRUE(reported().boolForKey(setting::showStatusIcon)) << contents.constData();
        EXPECT_EQ(filesBeside().size(), ++kept) << contents.left(100).constData();
        EXPECT_FALSE(QFile::exists(settingsFile()));
    }
    QFile second(settingsFile() + ".unreadable-2");
    ASSERT_TRUE(second.open(QIODevice::ReadOnly));
    EXPECT_EQ(second.readAll(), "no JSON");
}

TEST_F(Settings, ofWrongTypesInTheFileAreLeftOutAndStrangeOnesKept) {
    agent.reset();
    writeFile(R"({"LaunchAtLogin": "yes", "ShutdownDelay": 7, "Strange": [1.5, "day", {"a": true}],
                  "SavedDevices": ["x", {}]})");
    start();
    EXPECT_EQ(reported().objectForKey(setting::launchAtLogin), nullptr);
    EXPECT_EQ(reported().integerForKey(setting::shutdownDelay), 7);
    EXPECT_EQ(reportedDevices(message::allSavedDevices), Array{Dictionary{}});
    change(setting::useForce, true);
    restart();
    QFile file(settingsFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonValue strange = QJsonDocument::fromJson(file.readAll()).object().value("Strange");
    EXPECT_EQ(strange, QJsonDocument::fromJson(R"([1.5, "day", {"a": true}])").array());
}

TEST_F(Settings, thatCannotBeWrittenAreReportedKeptInMemoryAndWrittenLater) {
    QFile blocking(folder.filePath("a"));
    ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
    change(setting::shutdownDelay, 5);
    ASSERT_TRUE(waitFor([&] { return logText().contains("Cannot write the settings"); }));
    EXPECT_EQ(reported().integerForKey(setting::shutdownDelay), 5);
    ASSERT_TRUE(blocking.remove());
    EXPECT_TRUE(waitFor([&] { return QFile::exists(settingsFile()); }));
    EXPECT_EQ(logText().count("Cannot write the settings"), 1);
}

TEST_F(Settings, stayAsTheyWereWhereTheNewOnesDoNotFit) {
    AgentLog quiet(folder.filePath("log"));
    QFile file(folder.filePath("stored"));
    const auto contents = [&] { return file.open(QIODevice::ReadOnly) ? file.readAll() : "none"; };
    AgentSettings kept(file.fileName(), quiet);
    kept.store(setting::shutdownDelay, 5);
    ASSERT_TRUE(kept.write());
    const QByteArray before = contents();
    file.close();
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit none{0, former.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
    kept.store(setting::shutdownDelay, 6);
    EXPECT_FALSE(kept.write());
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(contents(), before);
    file.close();
    EXPECT_TRUE(kept.write());
    EXPECT_NE(contents(), before);
}

} // namespace
} // namespace zarvil::agent
