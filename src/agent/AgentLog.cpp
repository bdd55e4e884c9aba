#include "agent/AgentLog.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace zarvil::agent {

namespace {

void tell(const QString& text) { std::fprintf(stderr, "zarvil-agent: %s\n", qUtf8Printable(text)); }

/// Device names come from outside: a line break in one must not pass for a line of the log.
QString oneLine(QString text) {
    for (QChar& c : text)
        if (c.category() == QChar::Other_Control)
            c = ' ';
    return text;
}

} // namespace

void AgentLog::note(const QString& text) {
    QDir().mkpath(QFileInfo(path_).path());
    QFile file(path_);
    const QString line =
        QDateTime::currentDateTime().toString(Qt::ISODate) + ' ' + oneLine(text) + '\n';
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Append) &&
                         file.write(line.toUtf8()) >= 0 && file.flush();
    if (!written && !std::exchange(complained_, true))
        tell("Cannot write the log " + path_ + ": " + file.errorString());
}

void AgentLog::problem(const QString& text) {
    tell(oneLine(text));
    note(text);
}

} // namespace zarvil::agent
