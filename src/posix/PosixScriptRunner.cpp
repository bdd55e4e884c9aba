#include "posix/PosixScriptRunner.h"

#include "posix/FileDescriptor.h"
#include "posix/ScriptProcess.h"
#include "posix/SystemError.h"
#include "posix/Utf8.h"
#include "protocol/NonCopyable.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace zarvil::posix {

namespace {

constexpr std::string_view standardShell = "/bin/sh";
constexpr std::string_view blanks = " \t\r";
constexpr int signalBase = 128; // as a shell reports a death by signal

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The interpreter and, if the line has more, all of that as one argument, as the kernel reads it.
/// A carriage return before the line's end does not count.
std::vector<std::string> interpreterOf(std::string_view source) {
    if (!source.starts_with("#!"))
        return {std::string(standardShell)};
    const std::string_view line = trimmed(source.substr(2, source.find('\n') - 2));
    if (line.empty())
        return {std::string(standardShell)};
    const std::size_t end = line.find_first_of(blanks);
    std::vector<std::string> command{std::string(line.substr(0, end))};
    if (end != std::string_view::npos)
        command.emplace_back(trimmed(line.substr(end)));
    return command;
}

/// A script's text in a file that only this user can read, for as long as this lives.
class TemporaryScript : NonCopyable {
public:
    explicit TemporaryScript(std::string_view source) {
        const char* folder = std::getenv("TMPDIR");
        path_ = std::string(folder && *folder == '/' ? folder : "/tmp") + "/zarvil-script-XXXXXX";
        const FileDescriptor file(::mkostemp(path_.data(), O_CLOEXEC));
        if (!file.isOpen() || !writeAll(file.get(), source))
            failure_ = errno;
        exists_ = file.isOpen();
    }
    ~TemporaryScript() {
        if (exists_)
            ::unlink(path_.c_str());
    }

    [[nodiscard]] const std::string& path() const { return path_; }
    /// 0 or the error number.
    [[nodiscard]] int failure() const { return failure_; }

private:
    std::string path_;
    bool exists_ = false;
    int failure_ = 0;
};

ScriptError startError(const std::string& interpreter, int errorNumber) {
    return {errorNumber, "Could not start the script's interpreter “" + printableLine(interpreter) +
                             "”: " + reason(errorNumber) + "."};
}

std::string signalText(int signal) {
    std::string text = "Signal " + std::to_string(signal);
    if (const char* name = ::sigdescr_np(signal))
        text += std::string(" (") + name + ")";
    return text + " ended the script.";
}

std::optional<ScriptError> errorOf(const ProcessOutcome& outcome, const std::string& interpreter) {
    switch (outcome.kind) {
    case ProcessOutcome::Kind::NotStarted:
        return startError(interpreter, outcome.number);
    case ProcessOutcome::Kind::Signalled:
        return ScriptError{signalBase + outcome.number, signalText(outcome.number)};
    case ProcessOutcome::Kind::Unknown:
        return ScriptError{ECHILD, "The script has ended, but its result got lost."};
    case ProcessOutcome::Kind::Exited:
        break;
    }
    if (outcome.number == 0)
        return std::nullopt;
    if (!outcome.lastErrorLine.empty())
        return ScriptError{outcome.number, outcome.lastErrorLine};
    return ScriptError{outcome.number, "The script failed with exit status " +
                                           std::to_string(outcome.number) + " and gave no reason."};
}

} // namespace

std::optional<ScriptError> PosixScriptRunner::run(std::string_view source) {
    if (source.find('\0') != std::string_view::npos)
        return ScriptError{EINVAL, "The script contains a NUL character, so it cannot be run."};
    const TemporaryScript script(source);
    if (script.failure() != 0)
        return ScriptError{script.failure(), "Could not prepare the script for running: " +
                                                 reason(script.failure()) + "."};
    std::vector<std::string> command = interpreterOf(source);
    const std::string interpreter = command.front();
    command.push_back(script.path());
    return errorOf(ScriptProcess::run(command), interpreter);
}

} // namespace zarvil::posix
