#include "posix/PosixFileManager.h"

#include "posix/AtomicFile.h"
#include "posix/SystemError.h"
#include "posix/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <new>
#include <pwd.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace zarvil::posix {

namespace {

constexpr mode_t fileMode = 0600;
constexpr mode_t folderMode = 0777; // less the process's mask

std::string homeFolder() {
    if (const char* home = std::getenv("HOME"); home && *home)
        return home;
    const passwd* user = ::getpwuid(::geteuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

bool hasNul(std::string_view path) { return path.find('\0') != std::string_view::npos; }

/// Opens for a direct write; `created` tells whether the file is new.
FileDescriptor openForWriting(const std::string& path, bool& created) {
    constexpr int common = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
    FileDescriptor file(::open(path.c_str(), common | O_CREAT | O_EXCL, fileMode));
    created = file.isOpen();
    if (!created && errno == EEXIST)
        return FileDescriptor(::open(path.c_str(), common | O_CREAT | O_TRUNC, fileMode));
    return file;
}

/// 0 or the error number.
int writeDirectly(const std::string& path, std::string_view text) {
    bool created = false;
    const FileDescriptor file = openForWriting(path, created);
    if (!file.isOpen())
        return errno;
    struct stat status {};
    if (::fstat(file.get(), &status) == 0 && !S_ISREG(status.st_mode))
        return ENXIO;
    if (writeAll(file.get(), text))
        return 0;
    const int failure = errno;
    if (created)
        ::unlink(path.c_str());
    return failure;
}

/// The mode of the first of the items that is a file, else that of a new one.
mode_t modeOf(std::initializer_list<const std::string*> items) {
    constexpr mode_t permissions = 07777;
    struct stat status {};
    for (const std::string* item : items) {
        if (::lstat(item->c_str(), &status) == 0 && S_ISREG(status.st_mode))
            return status.st_mode & permissions;
    }
    return fileMode;
}

/// 0 or the error number.
int writeAtomically(const std::string& path, std::string_view text) {
    AtomicFile file(path);
    const int failure = file.prepare(text, modeOf({&path}));
    return failure == 0 ? file.commit() : failure;
}

/// 0 or the error number. Asked before a folder is emptied that could then not be removed itself.
int refusalToRemove(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return errno;
    const std::string item = path.substr(0, path.find_last_not_of('/') + 1);
    const auto parent = std::filesystem::path(item).parent_path();
    const char* folder = parent.empty() ? "." : parent.c_str();
    return ::faccessat(AT_FDCWD, folder, W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

/// 0 or the error number.
int remove(const std::string& path) {
    std::error_code failure(refusalToRemove(path), std::generic_category());
    if (!failure)
        std::filesystem::remove_all(path, failure);
    return failure.value();
}

/// Whether the item of that path lies below the folder, wherever links lead.
bool isWithin(const std::string& path, const std::string& folder) {
    std::error_code failure;
    const auto place = std::filesystem::canonical(path.substr(0, path.rfind('/') + 1), failure);
    if (failure)
        return false;
    const auto outer = std::filesystem::canonical(folder, failure);
    return !failure && std::ranges::mismatch(outer, place).in1 == outer.end();
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Error numbers of the two halves.
struct Outcome {
    int removal = 0;
    int write = 0;
};

Outcome replace(const std::string& former, const std::string& path, std::string_view text) {
    Outcome outcome{refusalToRemove(former), 0};
    AtomicFile file(path);
    outcome.write = file.prepare(text, modeOf({&former, &path}));
    // What lies within the former item would go with it.
    if (outcome.write == 0 && isWithin(path, former))
        outcome.write = ENOENT;
    if (outcome.write != 0)
        return outcome;
    if (outcome.removal == 0 && path == former && isFolder(former))
        outcome.removal = remove(former); // no file can be renamed over a folder
    outcome.write = file.commit();
    // What could not be removed is replaced all the same; one that was missing is told of.
    if (outcome.write == 0 && outcome.removal != ENOENT && file.isAt(former))
        outcome.removal = 0;
    if (outcome.write != 0 || outcome.removal != 0)
        return outcome;
    // Two spellings may name one file, which then takes the new one, as where case is ignored.
    if (file.isAt(former))
        static_cast<void>(::rename(former.c_str(), path.c_str()));
    else if (path != former)
        outcome.removal = remove(former);
    return outcome;
}

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

// Keys of the string table.
constexpr std::string_view saveFailed = "Could not save the file “%1”: %2.";
constexpr std::string_view removeFailed = "Could not remove “%1”: %2.";
constexpr std::string_view createFailed = "Could not create the folder “%1”: %2.";

} // namespace

PosixFileManager::PosixFileManager(const StringTable& strings)
    : PosixFileManager(strings, homeFolder()) {}

PosixFileManager::PosixFileManager(const StringTable& strings, std::string home)
    : strings_(strings), home_(std::move(home)) {
    while (home_.size() > 1 && home_.back() == '/')
        home_.pop_back();
}

std::optional<Error> PosixFileManager::errorOf(std::string_view sentence, std::string_view path,
                                               int failure) const {
    if (failure == 0)
        return std::nullopt;
    return systemError(strings_, sentence, path, failure);
}

std::string PosixFileManager::expandingTilde(std::string_view path) const {
    if (path != "~" && !path.starts_with("~/"))
        return std::string(path);
    const std::string_view below = path.substr(1);
    return home_ == "/" && !below.empty() ? std::string(below) : home_ + std::string(below);
}

FileKind PosixFileManager::kindOfItem(std::string_view path) const {
    struct stat status {};
    if (hasNul(path) || ::stat(std::string(path).c_str(), &status) != 0)
        return FileKind::Missing;
    return S_ISDIR(status.st_mode) ? FileKind::Directory : FileKind::Other;
}

std::vector<std::string> PosixFileManager::visibleContentsOfDirectory(std::string_view path) const {
    std::vector<std::string> names;
    if (hasNul(path))
        return names;
    const std::unique_ptr<DIR, CloseDirectory> directory(::opendir(std::string(path).c_str()));
    if (!directory)
        return names;
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(directory.get());
        if (!entry)
            break;
        const std::string_view name(entry->d_name);
        if (!name.starts_with('.'))
            names.emplace_back(name);
    }
    if (errno != 0) // half a list would be taken for the whole
        names.clear();
    return names;
}

std::optional<std::string> PosixFileManager::readText(std::string_view path) const try {
    if (hasNul(path))
        return std::nullopt;
    auto text = readFile(std::string(path));
    if (!text || !isValidUtf8(*text))
        return std::nullopt;
    return text;
} catch (const std::bad_alloc&) {
    // Larger than the memory: it cannot be read.
    return std::nullopt;
} catch (const std::length_error&) {
    return std::nullopt;
}

std::optional<Error> PosixFileManager::writeText(std::string_view text, std::string_view path,
                                                 Atomicity atomicity) {
    int failure = EINVAL;
    if (!hasNul(path)) {
        const std::string file(path);
        failure = atomicity == Atomicity::Atomic ? writeAtomically(file, text)
                                                 : writeDirectly(file, text);
    }
    return errorOf(saveFailed, path, failure);
}

Replacement PosixFileManager::replaceItem(std::string_view former, std::string_view text,
                                          std::string_view path) {
    if (hasNul(former))
        return {errorOf(removeFailed, former, EINVAL), writeText(text, path, Atomicity::Atomic)};
    const Outcome outcome = hasNul(path) ? Outcome{refusalToRemove(std::string(former)), EINVAL}
                                         : replace(std::string(former), std::string(path), text);
    return {errorOf(removeFailed, former, outcome.removal),
            errorOf(saveFailed, path, outcome.write)};
}

std::optional<Error> PosixFileManager::createDirectory(std::string_view path) {
    if (!hasNul(path) && ::mkdir(std::string(path).c_str(), folderMode) == 0)
        return std::nullopt;
    return errorOf(createFailed, path, hasNul(path) ? EINVAL : errno);
}

std::optional<Error> PosixFileManager::removeItem(std::string_view path) {
    return errorOf(removeFailed, path, hasNul(path) ? EINVAL : remove(std::string(path)));
}

} // namespace zarvil::posix
