#pragma once

#include "posix/FileDescriptor.h"
#include "protocol/NonCopyable.h"

#include <string>
#include <string_view>
#include <sys/types.h>

namespace zarvil::posix {

/// Replaces the content of a file so that a reader, and a crash at any moment, meets the old
/// content or the new one whole. The new content is written into a hidden temporary file of the
/// same folder, brought to the disk and renamed over the file.
///
/// All saves into one folder use the same temporary name, guarded by a lock: what a killed process
/// left behind is taken away by the next save into that folder, so that leftovers do not pile up. A
/// save that finds the name in use by another process takes a name of its own.
class AtomicFile : NonCopyable {
public:
    static constexpr std::string_view temporaryName = ".zarvil-save";

    /// 0, or the error number; then the old content stands and the temporary file is gone.
    [[nodiscard]] static int replace(const std::string& path, std::string_view content);

private:
    explicit AtomicFile(const std::string& path);
    ~AtomicFile();

    [[nodiscard]] bool openFolder();
    [[nodiscard]] bool openTemporary(mode_t mode);
    [[nodiscard]] bool createLocked(const std::string& name, mode_t mode);
    [[nodiscard]] bool removeLeftover() const;
    [[nodiscard]] bool names(const std::string& name, const FileDescriptor& file) const;
    [[nodiscard]] bool write(std::string_view content);

    std::string folderPath_;
    std::string fileName_;
    FileDescriptor folder_;
    FileDescriptor temporary_;
    std::string temporaryName_; ///< empty while there is no temporary file to take away
};

} // namespace zarvil::posix
