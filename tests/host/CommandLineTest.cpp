#include "host/CommandLine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zarvil::host {
namespace {

TEST(CommandLineTest, goodOnesAreUnderstood) {
    const QTemporaryDir folder;
    const QString root = QDir(folder.path()).canonicalPath();
    const auto parsed = [](const QStringList& arguments, const QString& environment = {}) {
        const auto outcome = parseCommandLine(QStringList{"program"} + arguments, environment);
        EXPECT_TRUE(std::holds_alternative<CommandLine>(outcome))
            << arguments.join(' ').toStdString();
        return std::holds_alternative<CommandLine>(outcome) ? std::get<CommandLine>(outcome)
                                                            : CommandLine{};
    };
    EXPECT_EQ(parsed({}).wish, CommandLine::Wish::Run);
    EXPECT_EQ(parsed({"-h"}).wish, CommandLine::Wish::Help);
    EXPECT_EQ(parsed({"--version"}).wish, CommandLine::Wish::Version);
    EXPECT_EQ(parsed({"--diagnose"}).wish, CommandLine::Wish::Diagnose);
    EXPECT_EQ(parsed({"--tab", "scripts"}).tab, "scripts");
    EXPECT_EQ(parsed({"--root", root + "/."}).root, root);
    EXPECT_EQ(parsed({"a b.prefPane"}).bundle, "a b.prefPane");
    EXPECT_EQ(parsed({"--", "--root"}).bundle, "--root");
    EXPECT_EQ(parsed({"--appearance=dark"}).appearance, AppearanceChoice::Dark);
    EXPECT_EQ(parsed({}, "dark").appearance, AppearanceChoice::Dark);
    EXPECT_EQ(parsed({"--appearance", "light"}, "dark").appearance, AppearanceChoice::Light);
}

TEST(CommandLineTest, wrongOnesSayWhatIsWrong) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const struct {
        QStringList arguments;
        QString environment;
        QString says;
    } cases[] = {
        {{"--wrong"}, {}, "wrong"},
        {{"--root"}, {}, "--root"},
        {{"--root", ""}, {}, "is not a folder"},
        {{"--root=" + file.fileName()}, {}, "is not a folder"},
        {{"--appearance", "blue"}, {}, "blue"},
        {{}, "Dark", "ZARVIL_APPEARANCE"},
        {{"--tab="}, {}, "--tab"},
        {{"one", "two"}, {}, "only one"},
        {{""}, {}, "empty"},
    };
    for (const auto& row : cases) {
        const auto outcome =
            parseCommandLine(QStringList{"program"} + row.arguments, row.environment);
        ASSERT_TRUE(std::holds_alternative<UsageError>(outcome)) << row.says.toStdString();
        EXPECT_TRUE(std::get<UsageError>(outcome).message.contains(row.says))
            << std::get<UsageError>(outcome).message.toStdString();
    }
}

} // namespace
} // namespace zarvil::host
