#pragma once

#include "posix/FileDescriptor.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace zarvil::posix {

/// Picks the last line that is not blank out of a stream of any length, in bounded memory.
class LastLine {
public:
    void add(std::string_view bytes);
    /// Also counts a last line without a line end. Printable, in valid UTF-8.
    [[nodiscard]] std::string text() const;

private:
    static constexpr std::size_t longestLine = 1024; ///< bytes; the rest of a line is dropped
    void endLine();

    std::string current_;
    std::string last_;
};

/// How a process came to its end.
struct ProcessOutcome {
    enum class Kind { NotStarted, Exited, Signalled, Unknown };
    Kind kind = Kind::Unknown;
    int number = 0; ///< the error number, the exit status or the signal
    std::string lastErrorLine;
};

/// Runs a program as a leader of its own session, hence without a terminal and in a process group
/// of its own; with nothing to read, its output dropped and its error output watched; with no other
/// descriptor of this process and with the default signal actions. It works in the user's home.
class ScriptProcess {
public:
    /// `arguments[0]` is the program's path. Returns when the program has ended; what it leaves
    /// running is not waited for, even while that holds the error output open.
    [[nodiscard]] static ProcessOutcome run(const std::vector<std::string>& arguments);

private:
    ScriptProcess() = default;
    [[nodiscard]] bool openChannels();
    [[nodiscard]] bool start(const std::vector<std::string>& arguments);
    [[nodiscard]] int launchFailure() const;
    [[nodiscard]] ProcessOutcome wait();
    void drain(std::size_t limit);

    FileDescriptor null_;
    FileDescriptor errorsIn_;  ///< read by this process
    FileDescriptor errorsOut_; ///< the program's
    FileDescriptor launchIn_;  ///< tells why the program could not be started
    FileDescriptor launchOut_;
    pid_t process_ = -1;
    LastLine lastLine_;
};

} // namespace zarvil::posix
