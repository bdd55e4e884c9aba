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

/// What another thread wishes of the one that waits for a process.
class RunControl {
public:
    enum class Wish : char { None, Stop, Abandon };

    RunControl();

    /// 0 or the error number.
    [[nodiscard]] int failure() const { return failure_; }
    void send(Wish wish) const;
    /// Readable when there is a wish.
    [[nodiscard]] const FileDescriptor& wishes() const { return wishes_; }
    /// Takes the next wish; waits for one.
    [[nodiscard]] Wish wish() const;

private:
    FileDescriptor wishes_;
    FileDescriptor wishing_;
    int failure_ = 0;
};

/// How a process came to its end.
struct ProcessOutcome {
    enum class Kind { NotStarted, Exited, Signalled, Unknown };
    Kind kind = Kind::Unknown;
    int number = 0; ///< the error number, the exit status or the signal
    std::string lastErrorLine;
};

class ProcessGuard;

/// Runs a program as a leader of its own session, hence without a terminal and in a process group
/// of its own; with nothing to read, its output dropped and its error output watched; with no other
/// descriptor of this process and with the default signal actions. It works in the user's home.
class ScriptProcess {
public:
    /// `arguments[0]` is the program's path. Returns when the program has ended; what it leaves
    /// running is not waited for, even while that holds the error output open. A wish to stop has
    /// the guard end the program's group; one to abandon does too, and returns at once.
    [[nodiscard]] static ProcessOutcome run(const std::vector<std::string>& arguments,
                                            ProcessGuard& guard, const RunControl& control);

private:
    ScriptProcess(ProcessGuard& guard, const RunControl& control)
        : guard_(guard), control_(control) {}
    [[nodiscard]] bool openChannels();
    [[nodiscard]] bool start(const std::vector<std::string>& arguments);
    [[nodiscard]] int launchFailure() const;
    [[nodiscard]] ProcessOutcome wait();
    void drain(std::size_t limit);
    /// False when the program is not to be waited for.
    [[nodiscard]] bool heed(RunControl::Wish wish);

    ProcessGuard& guard_;
    const RunControl& control_;
    FileDescriptor null_;
    FileDescriptor errorsIn_;  ///< read by this process
    FileDescriptor errorsOut_; ///< the program's
    FileDescriptor launchIn_;  ///< tells why the program could not be started
    FileDescriptor launchOut_;
    pid_t process_ = -1;
    LastLine lastLine_;
};

} // namespace zarvil::posix
