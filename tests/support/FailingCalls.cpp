#include "FailingCalls.h"

#include <csignal>
#include <cstdarg>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zarvil::failing {

namespace {

constexpr Errors opening{EMFILE, EACCES, ENOSPC, EINTR};
constexpr Errors looking{EACCES, ENOENT, EIO, ELOOP};
constexpr Errors waiting{EINTR, EINTR, EINTR, EINTR};

} // namespace

} // namespace zarvil::failing

// The linker leads the calls here and names the real ones so.
#define ZARVIL_FAILING(result, failed, name, errors, parameters, arguments)                        \
    result __real_##name parameters;                                                               \
    result __wrap_##name parameters {                                                              \
        return zarvil::failing::fails(#name, zarvil::failing::errors) ? (failed)                   \
                                                                      : __real_##name arguments;   \
    }

// NOLINTBEGIN: the names and the variable arguments are those of the system.
extern "C" {

ZARVIL_FAILING(ssize_t, -1, write, writing, (int file, const void* bytes, std::size_t count),
               (file, bytes, count))
ZARVIL_FAILING(ssize_t, -1, read, reading, (int file, void* bytes, std::size_t count),
               (file, bytes, count))
ZARVIL_FAILING(int, -1, fsync, writing, (int file), (file))
ZARVIL_FAILING(int, -1, fchmod, changing, (int file, mode_t mode), (file, mode))
ZARVIL_FAILING(int, -1, fstat, looking, (int file, struct stat* status), (file, status))
ZARVIL_FAILING(int, -1, stat, looking, (const char* path, struct stat* status), (path, status))
ZARVIL_FAILING(int, -1, lstat, looking, (const char* path, struct stat* status), (path, status))
ZARVIL_FAILING(int, -1, faccessat, looking, (int folder, const char* path, int mode, int flags),
               (folder, path, mode, flags))
ZARVIL_FAILING(int, -1, mkdir, changing, (const char* path, mode_t mode), (path, mode))
ZARVIL_FAILING(int, -1, unlink, changing, (const char* path), (path))
ZARVIL_FAILING(int, -1, unlinkat, changing, (int folder, const char* path, int flags),
               (folder, path, flags))
ZARVIL_FAILING(int, -1, rename, changing, (const char* from, const char* to), (from, to))
ZARVIL_FAILING(int, -1, renameat, changing,
               (int folder, const char* from, int other, const char* to), (folder, from, other, to))
ZARVIL_FAILING(DIR*, nullptr, opendir, opening, (const char* path), (path))
ZARVIL_FAILING(dirent*, nullptr, readdir, reading, (DIR * folder), (folder))
ZARVIL_FAILING(int, -1, mkostemp, opening, (char* path, int flags), (path, flags))
ZARVIL_FAILING(int, -1, pipe2, starting, (int* ends, int flags), (ends, flags))
ZARVIL_FAILING(int, -1, socketpair, starting, (int domain, int type, int protocol, int* ends),
               (domain, type, protocol, ends))
ZARVIL_FAILING(pid_t, -1, fork, starting, (), ())
ZARVIL_FAILING(int, -1, poll, waiting, (pollfd * files, nfds_t count, int timeout),
               (files, count, timeout))

// The system never refuses it for a process's own child.
int __real_kill(pid_t process, int number);
int __wrap_kill(pid_t process, int number) {
    siginfo_t end{};
    const bool isChild = process > 0 && ::waitid(P_PID, static_cast<id_t>(process), &end,
                                                 WEXITED | WNOHANG | WNOWAIT) == 0;
    return !isChild && zarvil::failing::fails("kill", zarvil::failing::ending)
               ? -1
               : __real_kill(process, number);
}

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    if (zarvil::failing::fails("open", zarvil::failing::opening))
        return -1;
    return __real_open(path, flags, mode);
}

int __real_openat(int folder, const char* path, int flags, ...);
int __wrap_openat(int folder, const char* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    if (zarvil::failing::fails("openat", zarvil::failing::opening))
        return -1;
    return __real_openat(folder, path, flags, mode);
}
}
// NOLINTEND
