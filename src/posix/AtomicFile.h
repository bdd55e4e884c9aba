#pragma once

#include "posix/FileDescriptor.h"
#include "protocol/NonCopyable.h"

#include <string>
#include <string_view>
#include <sys/types.h>

namespace zarvil::posix {

/// The new content of a file, so that a reader, and a crash at any moment, meets the old content or
/// the new one whole: it is written into a hidden temporary file of the same folder, brought to the
/// disk and then renamed over the file. Without a commit nothing has changed.
///
/// All saves into one folder use the same temporary name, so that what a killed process left behind
/// is taken away by the next one. One process at a time saves into a folder.
class AtomicFile {
public:
    static constexpr std::string_view temporaryName = ".zarvil-save";

    explicit AtomicFile(const std::string& path);
    ~AtomicFile();

    /// Brings the content to the disk beside the file; 0, or the error number.
    [[nodiscard]] int prepare(std::string_view content, mode_t mode);
    /// Puts what was prepared in the file's place; 0, or the error number.
    [[nodiscard]] int commit();
    /// Whether the path names the very file that was prepared, under whatever spelling.
    [[nodiscard]] bool isAt(const std::string& path) const;

private:
    [[nodiscard]] bool write(std::string_view content, mode_t mode);

    std::string folderPath_;
    std::string fileName_;
    FileDescriptor folder_;
    FileDescriptor temporary_;
    bool pending_ = false; ///< there is a temporary file to take away
};

} // namespace zarvil::posix
