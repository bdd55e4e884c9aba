#include "posix/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zarvil::posix {

namespace {

constexpr mode_t privateMode = 0600;
constexpr const char* temporary = AtomicFile::temporaryName.data();

/// Some file systems cannot bring a file to the disk on demand; its content stands anyway.
bool synchronize(int descriptor) {
    return ::fsync(descriptor) == 0 ||
           std::ranges::count(std::initializer_list<int>{EINVAL, ENOSYS, ENOTSUP, EOPNOTSUPP},
                              errno) > 0;
}

} // namespace

AtomicFile::AtomicFile(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    folderPath_ = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    fileName_ = slash == std::string::npos ? path : path.substr(slash + 1);
}

AtomicFile::~AtomicFile() {
    if (pending_)
        ::unlinkat(folder_.get(), temporary, 0);
}

int AtomicFile::prepare(std::string_view content, mode_t mode) {
    return write(content, mode) ? 0 : errno;
}

bool AtomicFile::write(std::string_view content, mode_t mode) {
    folder_ = FileDescriptor(::open(folderPath_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder_.isOpen())
        return false;
    ::unlinkat(folder_.get(), temporary, 0);
    temporary_ = FileDescriptor(
        ::openat(folder_.get(), temporary, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, privateMode));
    if (!temporary_.isOpen())
        return false;
    pending_ = true;
    // A file system without permissions may refuse; the file then stays its owner's alone.
    if (mode != privateMode)
        static_cast<void>(::fchmod(temporary_.get(), mode));
    return writeAll(temporary_.get(), content) && synchronize(temporary_.get());
}

int AtomicFile::commit() {
    if (::renameat(folder_.get(), temporary, folder_.get(), fileName_.c_str()) != 0)
        return errno;
    pending_ = false;
    // Brings the name to the disk too.
    static_cast<void>(synchronize(folder_.get()));
    return 0;
}

bool AtomicFile::isAt(const std::string& path) const {
    struct stat named {};
    struct stat written {};
    return ::lstat(path.c_str(), &named) == 0 && ::fstat(temporary_.get(), &written) == 0 &&
           named.st_dev == written.st_dev && named.st_ino == written.st_ino;
}

} // namespace zarvil::posix
