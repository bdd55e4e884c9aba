#pragma once

#include "platform/FileManager.h"
#include "platform/StringTable.h"

namespace zarvil::posix {

/// The file system of a POSIX computer. Names are bytes, taken as they are; one with a NUL names
/// nothing. Nothing blocks on a pipe or a device that stands where a file is expected. Errors speak
/// the language of the string table, which must outlive this.
class PosixFileManager final : public FileManager {
public:
    /// The home folder is `$HOME`, else the one of the user database.
    explicit PosixFileManager(const StringTable& strings);
    PosixFileManager(const StringTable& strings, std::string home);

    [[nodiscard]] std::string expandingTilde(std::string_view path) const override;
    [[nodiscard]] FileKind kindOfItem(std::string_view path) const override;
    [[nodiscard]] std::vector<std::string>
    visibleContentsOfDirectory(std::string_view path) const override;
    [[nodiscard]] std::optional<std::string> readText(std::string_view path) const override;

    [[nodiscard]] std::optional<Error> writeText(std::string_view text, std::string_view path,
                                                 Atomicity atomicity) override;
    [[nodiscard]] Replacement replaceItem(std::string_view former, std::string_view text,
                                          std::string_view path) override;
    [[nodiscard]] std::optional<Error> createDirectory(std::string_view path) override;
    [[nodiscard]] std::optional<Error> removeItem(std::string_view path) override;

private:
    [[nodiscard]] std::optional<Error> errorOf(std::string_view sentence, std::string_view path,
                                               int failure) const;

    const StringTable& strings_;
    std::string home_;
};

} // namespace zarvil::posix
