#include "posix/FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zarvil::posix {

void FileDescriptor::close() {
    // Not repeated when interrupted: the descriptor is gone either way.
    if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0)
        ::close(descriptor);
}

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<std::string> readAll(int descriptor) {
    constexpr std::size_t chunk = 65536;
    struct stat status {};
    std::size_t expected = chunk;
    // One byte more than the size, so that the end shows in the first read.
    if (::fstat(descriptor, &status) == 0 && status.st_size > 0)
        expected = static_cast<std::size_t>(status.st_size) + 1;
    std::string bytes;
    std::size_t length = 0;
    while (true) {
        if (bytes.size() - length == 0)
            bytes.resize(length + (length == 0 ? expected : chunk + length / 2));
        const ssize_t count = ::read(descriptor, bytes.data() + length, bytes.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    bytes.shrink_to_fit();
    return bytes;
}

std::optional<std::string> readFile(const std::string& path) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.isOpen())
        return std::nullopt;
    struct stat status {};
    if (::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode))
        return readAll(file.get());
    errno = EINVAL;
    return std::nullopt;
}

} // namespace zarvil::posix
