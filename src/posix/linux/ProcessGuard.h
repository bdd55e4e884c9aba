#pragma once

#include "posix/FileDescriptor.h"
#include "protocol/NonCopyable.h"

#include <string>
#include <sys/types.h>

namespace zarvil::posix {

/// A small process that outlives this one, if only for a moment: it ends a process group and
/// deletes a file when it is told to, or when this process has gone, however that came about.
class ProcessGuard : NonCopyable {
public:
    /// `file` is an absolute path.
    explicit ProcessGuard(std::string file);
    /// Dismisses the guard, or waits until the group that it was told to end has ended.
    ~ProcessGuard();

    /// 0 or the error number.
    [[nodiscard]] int failure() const { return failure_; }
    /// Hands the group of this leader into the guard's care.
    void watch(pid_t leader) const;
    /// Has the group end: SIGTERM, and after two seconds SIGKILL for what is left. Does not wait.
    void endGroup() { channel_.close(); }
    /// As `endGroup`, and the destructor does not wait either.
    void abandon();

private:
    std::string file_;
    FileDescriptor channel_; ///< the guard acts when this closes
    pid_t guard_ = -1;
    int failure_ = 0;
};

} // namespace zarvil::posix
