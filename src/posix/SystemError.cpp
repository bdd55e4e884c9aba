#include "posix/SystemError.h"

#include "posix/Utf8.h"

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace zarvil::posix {

namespace {

constexpr std::array<std::pair<int, std::string_view>, 16> reasons{{
    {EACCES, "you do not have permission"},
    {EPERM, "you do not have permission"},
    {ENOENT, "there is no such file or folder"},
    {EEXIST, "something of that name is already there"},
    {ENOTDIR, "a part of its path is not a folder"},
    {EISDIR, "it is a folder"},
    {ENAMETOOLONG, "its name is too long"},
    {EINVAL, "its name contains a character that is not allowed"},
    {ELOOP, "its symbolic links lead in a circle"},
    {ENOSPC, "the disk is full"},
    {EDQUOT, "your share of the disk is used up"},
    {EFBIG, "it would be larger than files may be here"},
    {EROFS, "the disk can only be read"},
    {EIO, "the disk reported a fault"},
    {EMFILE, "too many files are open"},
    {ENXIO, "it is not a regular file"},
}};

} // namespace

std::string reason(const StringTable& strings, int errorNumber) {
    for (const auto& [number, words] : reasons) {
        if (number == errorNumber)
            return strings.localizedString(words);
    }
    return std::generic_category().message(errorNumber);
}

Error systemError(const StringTable& strings, std::string_view sentence, std::string_view path,
                  int errorNumber) {
    return {std::string(cocoaErrorDomain), errorNumber,
            strings.localizedString(sentence, {printableLine(path), reason(strings, errorNumber)})};
}

} // namespace zarvil::posix
