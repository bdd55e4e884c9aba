#include "agent/LineReader.h"

#include <array>
#include <cerrno>
#include <unistd.h>

namespace zarvil::agent {

LineReader::LineReader(std::function<void(const QString&)> line)
    : line_(std::move(line)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { read(); });
}

void LineReader::read() {
    std::array<char, 4096> chunk{};
    const ssize_t count = ::read(STDIN_FILENO, chunk.data(), chunk.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0) {
        notifier_.setEnabled(false);
        return;
    }
    buffer_.append(chunk.data(), count);
    for (qsizetype end = buffer_.indexOf('\n'); end >= 0; end = buffer_.indexOf('\n')) {
        const QString line = QString::fromUtf8(buffer_.left(end));
        buffer_.remove(0, end + 1);
        line_(line);
    }
}

} // namespace zarvil::agent
