#include "posix/AtomicFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zarvil::posix {

namespace {

constexpr mode_t defaultMode = 0666; // less the process's mask
constexpr mode_t modeBits = 07777;
constexpr int attempts = 8;

} // namespace

int AtomicFile::replace(const std::string& path, std::string_view content) {
    AtomicFile file(path);
    // Kept before the destructor's clean-up can overwrite it.
    const int failure = file.write(content) ? 0 : errno;
    return failure;
}

AtomicFile::AtomicFile(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    folderPath_ = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    fileName_ = slash == std::string::npos ? path : path.substr(slash + 1);
}

AtomicFile::~AtomicFile() {
    if (!temporaryName_.empty())
        ::unlinkat(folder_.get(), temporaryName_.c_str(), 0);
}

bool AtomicFile::write(std::string_view content) {
    if (!openFolder())
        return false;
    struct stat existing {};
    const bool keepMode =
        ::fstatat(folder_.get(), fileName_.c_str(), &existing, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISREG(existing.st_mode);
    const mode_t mode = keepMode ? existing.st_mode & modeBits : defaultMode;
    if (!openTemporary(mode))
        return false;
    if (keepMode && ::fchmod(temporary_.get(), mode) != 0)
        return false;
    if (!writeAll(temporary_.get(), content) || ::fsync(temporary_.get()) != 0)
        return false;
    if (::renameat(folder_.get(), temporaryName_.c_str(), folder_.get(), fileName_.c_str()) != 0)
        return false;
    temporaryName_.clear();
    // Brings the name to the disk too; some file systems cannot, and the content stands anyway.
    ::fsync(folder_.get());
    return true;
}

bool AtomicFile::openFolder() {
    folder_ = FileDescriptor(::open(folderPath_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder_.isOpen();
}

bool AtomicFile::openTemporary(mode_t mode) {
    const std::string shared(temporaryName);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (createLocked(shared, mode))
            return true;
        if (errno != EEXIST)
            return false;
        if (!removeLeftover())
            break;
    }
    // No other process takes this name; what bears it is a leftover of an earlier one.
    const std::string own = shared + "." + std::to_string(::getpid());
    ::unlinkat(folder_.get(), own.c_str(), 0);
    return createLocked(own, mode);
}

bool AtomicFile::createLocked(const std::string& name, mode_t mode) {
    FileDescriptor file(
        ::openat(folder_.get(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file.isOpen())
        return false;
    // Another process may take the new file for a leftover until it is locked.
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 || !names(name, file)) {
        errno = EEXIST;
        return false;
    }
    temporary_ = std::move(file);
    temporaryName_ = name;
    return true;
}

/// False while another process writes it, or when it is no temporary file at all.
bool AtomicFile::removeLeftover() const {
    const std::string name(temporaryName);
    const FileDescriptor file(
        ::openat(folder_.get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen())
        return errno == ENOENT;
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0)
        return false;
    // The owner may have renamed it meanwhile; then the name is free.
    if (!names(name, file))
        return true;
    return ::unlinkat(folder_.get(), name.c_str(), 0) == 0;
}

bool AtomicFile::names(const std::string& name, const FileDescriptor& file) const {
    struct stat named {};
    struct stat opened {};
    return ::fstatat(folder_.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           ::fstat(file.get(), &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

} // namespace zarvil::posix
