#include "qt/adapters/QtUserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zarvil {
namespace {

class QtUserDefaultsTest : public testing::Test {
protected:
    void write(const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray contentOf(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("defaults.ini");
};

TEST_F(QtUserDefaultsTest, valuesAreOnDiskAsSoonAsTheyAreSet) {
    QtUserDefaults writer(path);
    EXPECT_FALSE(writer.boolForKey("kZVShowMinutes"));
    for (const bool value : {true, false, true}) {
        writer.setBool(value, "kZVShowMinutes");
        EXPECT_EQ(QtUserDefaults(path).boolForKey("kZVShowMinutes"), value);
    }
    EXPECT_FALSE(writer.boolForKey("another"));
}

TEST_F(QtUserDefaultsTest, whatCouldNotBeWrittenGoesWithTheNextWrite) {
    path = folder.filePath("blocked/defaults.ini");
    QFile blocking(folder.filePath("blocked"));
    ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
    QtUserDefaults defaults(path);
    defaults.setBool(true, "first");
    EXPECT_TRUE(defaults.boolForKey("first"));
    ASSERT_TRUE(blocking.remove());
    defaults.setBool(true, "second");
    EXPECT_TRUE(contentOf(path).contains("first=true")) << contentOf(path).constData();
}

TEST_F(QtUserDefaultsTest, aCorruptFileKeepsAllItsLines) {
    const QByteArray broken = "[General]\nkey=true\n\xffgarbage\n[half";
    write(broken);
    QtUserDefaults defaults(path);
    EXPECT_TRUE(defaults.boolForKey("key"));
    defaults.setBool(true, "another");
    EXPECT_TRUE(QtUserDefaults(path).boolForKey("another"));
    EXPECT_TRUE(QtUserDefaults(path).boolForKey("key"));
    EXPECT_EQ(contentOf(path), "[General]\nanother=true\nkey=true\n\xffgarbage\n[half");
}

} // namespace
} // namespace zarvil
