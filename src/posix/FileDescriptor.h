#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zarvil::posix {

/// Owns an open file descriptor; negative means none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] int get() const { return descriptor_; }
    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    void close();

private:
    int descriptor_ = -1;
};

/// Writes everything; on failure false, with the reason in `errno`.
[[nodiscard]] bool writeAll(int descriptor, std::string_view bytes);
/// Reads to the end; nothing on failure, with the reason in `errno`.
[[nodiscard]] std::optional<std::string> readAll(int descriptor);
/// The same for a regular file; whatever else bears the name is not waited for. `ENOENT` says that
/// there is none.
[[nodiscard]] std::optional<std::string> readFile(const std::string& path);

} // namespace zarvil::posix
