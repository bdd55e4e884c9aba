#pragma once

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zarvil::host {

/// Bundles of the sample pane in a temporary folder, and the calls that the panes wrote down.
class Bundles : public testing::Test {
protected:
    Bundles() {
        qputenv("SAMPLE_PANE_LOG", path("log").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", path("config").toLocal8Bit());
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    static QJsonObject info(const QString& name) {
        return {{"name", name},
                {"identifier", "org.example." + name},
                {"version", "1"},
                {"library", "libsample.so"},
                {"principalClass", "zarvil::sample::SamplePane"}};
    }
    void write(const QString& name, const QByteArray& content) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void writeInfo(const QString& bundle, const QJsonObject& object) const {
        write(bundle + "/Contents/Info.json", QJsonDocument(object).toJson());
    }
    /// A working bundle; its folder, absolute.
    QString makeBundle(const QString& name, const QString& parent = "panes") const {
        const QString bundle = parent + '/' + name + ".prefPane";
        writeInfo(bundle, info(name));
        EXPECT_TRUE(QFile::copy(SAMPLE_PANE_LIBRARY, path(bundle + "/Contents/libsample.so")));
        return path(bundle);
    }
    /// The calls since the last time, without the name of the pane where there is one pane.
    QStringList calls() const {
        QFile file(path("log"));
        if (!file.open(QIODevice::ReadWrite))
            return {};
        const QString text = QString::fromUtf8(file.readAll());
        file.resize(0);
        return text.split('\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir folder;
};

} // namespace zarvil::host
