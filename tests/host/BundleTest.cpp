#include "host/Bundle.h"
#include "Bundles.h"

#include <QLibraryInfo>

#include <sys/stat.h>

namespace zarvil::host {
namespace {

using BundleTest = Bundles;

QByteArray contentOf(const QString& name) {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

std::optional<BundleFailure> failureOf(const QString& bundle) {
    const auto read = readBundle(bundle);
    if (const auto* failure = std::get_if<BundleFailure>(&read))
        return *failure;
    const auto loaded = loadPane(std::get<Bundle>(read));
    if (const auto* failure = std::get_if<BundleFailure>(&loaded))
        return *failure;
    return std::nullopt;
}

TEST_F(BundleTest, aWorkingBundleIsReadAndLoaded) {
    const auto read = readBundle(makeBundle("Good") + "/");
    ASSERT_TRUE(std::holds_alternative<Bundle>(read));
    const auto& bundle = std::get<Bundle>(read);
    EXPECT_EQ(bundle.name, "Good");
    EXPECT_EQ(bundle.library, path("panes/Good.prefPane/Contents/libsample.so"));
    EXPECT_TRUE(std::holds_alternative<std::unique_ptr<PreferencePane>>(loadPane(bundle)));
}

TEST_F(BundleTest, brokenDescriptionsAndLibrariesSayWhatIsWrong) {
    const auto text = [](const QJsonObject& object) { return QJsonDocument(object).toJson(); };
    const auto with = [](const char* key, const QJsonValue& value) {
        auto object = info("Broken");
        object[QLatin1String(key)] = value;
        return object;
    };
    write("outside.so", "outside the bundle");
    const QString otherPlugin =
        QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms/libqminimal.so";
    const QByteArray sample = contentOf(SAMPLE_PANE_LIBRARY);
    const QByteArray good = text(info("Broken"));
    using enum BundleFault;
    const struct {
        QByteArray info, library;
        BundleFault fault;
        const char* says;
    } cases[] = {
        {"", "", BadInfo, "not valid JSON at byte"},
        {"[1, 2]", "", BadInfo, "does not hold an object"},
        {"{}", "", BadInfo, "\"name\" is missing"},
        {text(with("identifier", "")), "", BadInfo, "\"identifier\" is missing"},
        {text(with("library", "absent.so")), "", NoLibrary, "\"absent.so\" is missing"},
        {text(with("library", "../../outside.so")), "", NoLibrary, "outside.so"},
        {good, "not a library", BadLibrary, "cannot be loaded"},
        {good, sample.left(2000), BadLibrary, "cannot be loaded"},
        {good, contentOf(otherPlugin), WrongInterface, "made for another program"},
        {text(with("principalClass", "zarvil::sample::Other")), sample, WrongInterface, ""},
    };
    int number = 0;
    for (const auto& row : cases) {
        const QString bundle = QStringLiteral("%1.prefPane").arg(++number);
        write(bundle + "/Contents/Info.json", row.info);
        write(bundle + "/Contents/libsample.so", row.library);
        const auto failure = failureOf(path(bundle));
        ASSERT_TRUE(failure) << row.info.toStdString();
        EXPECT_EQ(failure->fault, row.fault) << row.info.toStdString();
        EXPECT_TRUE(failure->message.contains(row.says)) << failure->message.toStdString();
        EXPECT_TRUE(failure->message.contains(path(bundle))) << failure->message.toStdString();
    }
    write("file.prefPane", "a file");
    QDir().mkpath(path("empty.prefPane"));
    EXPECT_EQ(failureOf(path("none.prefPane"))->fault, BundleFault::NotFound);
    EXPECT_EQ(failureOf(path("file.prefPane"))->fault, BundleFault::NotABundle);
    EXPECT_EQ(failureOf(path("empty.prefPane"))->fault, BundleFault::NotABundle);
    QDir().mkpath(path("pipe.prefPane/Contents"));
    ASSERT_EQ(::mkfifo(qPrintable(path("pipe.prefPane/Contents/Info.json")), 0600), 0);
    EXPECT_EQ(failureOf(path("pipe.prefPane"))->fault, BundleFault::NotABundle);
}

TEST_F(BundleTest, itsOwnWordsAreMadeFitForDisplay) {
    auto hostile = info("Broken");
    hostile["name"] = "\u202Eenap <img src='/dev/zero'>";
    hostile["library"] = QString(3 << 20, 'x');
    writeInfo("hostile.prefPane", hostile);
    EXPECT_LT(failureOf(path("hostile.prefPane"))->message.size(), 5000);
    write("hostile.prefPane/Contents/libsample.so", "");
    hostile["library"] = "libsample.so";
    writeInfo("hostile.prefPane", hostile);
    const auto read = readBundle(path("hostile.prefPane"));
    EXPECT_EQ(std::get<Bundle>(read).name, "\uFFFDenap <img src='/dev/zero'>");
}

TEST_F(BundleTest, theUsersBundlesComeFirstAndShadowTheSystems) {
    makeBundle("Zeta", "user");
    makeBundle("Alpha", "user");
    makeBundle("Alpha", "system");
    makeBundle("Beta", "system");
    write("user/Broken.prefPane/Contents/Info.json", "{");
    write("user/Other.folder/Contents/Info.json", "{}");
    const auto found = findBundles({path("user"), path("missing"), path("system")});
    QStringList listed;
    for (const auto& outcome : found)
        listed << (std::holds_alternative<Bundle>(outcome)
                       ? std::get<Bundle>(outcome).path
                       : std::get<BundleFailure>(outcome).path + " broken");
    const QStringList expected{path("user/Alpha.prefPane"),
                               path("user/Broken.prefPane") + " broken", path("user/Zeta.prefPane"),
                               path("system/Beta.prefPane")};
    EXPECT_EQ(listed, expected);
}

} // namespace
} // namespace zarvil::host
