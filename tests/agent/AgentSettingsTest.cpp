#include "AgentHarness.h"
#include "agent/PropertyListFile.h"

#include <QDir>

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
    const QByteArray header = "<?xml version=\"1.0\"?><plist version=\"1.0\">";
    QByteArray deep;
    for (int level = 0; level < 10'000; ++level)
        deep += "<array>";
    const std::vector<QByteArray> corrupt{
        "",
        "no XML",
        QByteArray("\0\xff\xfe", 3),
        header,
        header + "<array/></plist>",
        header + "<dict><key>a</key></dict></plist>",
        header + "<dict><key>a</key><integer>x</integer></dict></plist>",
        header + "<dict><key>a</key><true/></dict>",
        header + "<dict><key>a</key>" + deep,
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
    EXPECT_EQ(second.readAll(), "no XML");
}

TEST_F(Settings, ofWrongTypesInTheFileAreLeftOutAndStrangeOnesKept) {
    agent.reset();
    writeFile("<plist version=\"1.0\"><dict>"
              "<key>LaunchAtLogin</key><string>yes</string>"
              "<key>ShutdownDelay</key><integer>7</integer>"
              "<key>Strange</key><date>2020-01-01T00:00:00Z</date>"
              "<key>SavedDevices</key><array><string>x</string><dict/></array>"
              "</dict></plist>");
    start();
    EXPECT_EQ(reported().objectForKey(setting::launchAtLogin), nullptr);
    EXPECT_EQ(reported().integerForKey(setting::shutdownDelay), 7);
    EXPECT_EQ(reportedDevices(message::allSavedDevices), Array{Dictionary{}});
    change(setting::useForce, true);
    restart();
    QFile file(settingsFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto contents = readPropertyList(file.readAll());
    ASSERT_TRUE(std::holds_alternative<Dictionary>(contents));
    EXPECT_TRUE(std::get<Dictionary>(contents).stringForKey("Strange"));
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

} // namespace
} // namespace zarvil::agent
