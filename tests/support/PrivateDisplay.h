#pragma once

#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

namespace zarvil {

/// A virtual X display of the test's own, gone with this object. It has no window manager.
class PrivateDisplay {
public:
    PrivateDisplay() {
        server_.setStandardErrorFile(QProcess::nullDevice());
        // Without -noreset the server drops every client when the last one of a moment leaves.
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp",
                               "-noreset"});
        if (server_.waitForStarted() && server_.waitForReadyRead())
            name_ = ':' + QString::fromUtf8(server_.readLine()).trimmed();
        EXPECT_FALSE(name_.isEmpty()) << "Xvfb did not start";
    }
    ~PrivateDisplay() {
        server_.terminate();
        server_.waitForFinished();
    }
    PrivateDisplay(const PrivateDisplay&) = delete;
    PrivateDisplay& operator=(const PrivateDisplay&) = delete;

    const QString& name() const { return name_; }

    /// Runs xdotool on this display and gives what it prints; empty when it fails.
    QString xdotool(const QStringList& arguments) const {
        QProcess tool;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", name_);
        tool.setProcessEnvironment(environment);
        tool.start("xdotool", arguments);
        const bool ended = tool.waitForFinished() && tool.exitCode() == 0;
        return ended ? QString::fromUtf8(tool.readAllStandardOutput()).trimmed() : QString();
    }

private:
    QProcess server_;
    QString name_;
};

} // namespace zarvil
