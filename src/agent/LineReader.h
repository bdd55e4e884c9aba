#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>

#include <functional>

namespace zarvil::agent {

/// Hands on the lines of standard input as they come. Its end is no event.
class LineReader {
public:
    explicit LineReader(std::function<void(const QString&)> line);

private:
    void read();

    std::function<void(const QString&)> line_;
    QByteArray buffer_;
    QSocketNotifier notifier_;
};

} // namespace zarvil::agent
