#pragma once

#include "platform/Error.h"
#include "protocol/NonCopyable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvil {

enum class FileKind : std::uint8_t { Missing, Directory, Other };
enum class Atomicity : std::uint8_t { Direct, Atomic };

/// What became of the two halves of a replacement; nothing where all went well.
struct Replacement {
    std::optional<Error> removal;
    std::optional<Error> write;
};

/// The file system. Paths are absolute, UTF-8, with "/" between components.
class FileManager : NonCopyable {
public:
    virtual ~FileManager() = default;

    /// Replaces a leading "~" by the user's home folder.
    [[nodiscard]] virtual std::string expandingTilde(std::string_view path) const = 0;
    /// Follows symbolic links.
    [[nodiscard]] virtual FileKind kindOfItem(std::string_view path) const = 0;
    /// Names of the visible entries in no particular order; none when the folder cannot be listed.
    [[nodiscard]] virtual std::vector<std::string>
    visibleContentsOfDirectory(std::string_view path) const = 0;
    /// Nothing when the item cannot be read or is not valid UTF-8.
    [[nodiscard]] virtual std::optional<std::string> readText(std::string_view path) const = 0;

    /// Replaces the whole content. An atomic write leaves the old content or the new one at every
    /// moment, whatever happens to this process. A new file is its owner's alone.
    [[nodiscard]] virtual std::optional<Error>
    writeText(std::string_view text, std::string_view path, Atomicity atomicity) = 0;
    /// Removes the item `former` and writes the text to `path`, which may be the same, with the
    /// mode of that item. Nothing goes before its successor is safe: `former` stays as it was where
    /// the text cannot be written, and the text is written where `former` cannot be removed.
    [[nodiscard]] virtual Replacement replaceItem(std::string_view former, std::string_view text,
                                                  std::string_view path) = 0;
    /// Makes one folder; its parent must exist.
    [[nodiscard]] virtual std::optional<Error> createDirectory(std::string_view path) = 0;
    /// Removes a file, a symbolic link (never what it leads to) or a folder with its contents.
    [[nodiscard]] virtual std::optional<Error> removeItem(std::string_view path) = 0;
};

} // namespace zarvil
