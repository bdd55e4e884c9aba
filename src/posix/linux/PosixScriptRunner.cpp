#include "posix/PosixScriptRunner.h"

#include "posix/FileDescriptor.h"
#include "posix/SystemError.h"
#include "posix/Utf8.h"
#include "posix/linux/ProcessGuard.h"
#include "posix/linux/ScriptProcess.h"
#include "protocol/NonCopyable.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <system_error>
#include <thread>
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
    TemporaryScript() {
        const char* folder = std::getenv("TMPDIR");
        path_ = std::string(folder && *folder == '/' ? folder : "/tmp") + "/zarvil-script-XXXXXX";
        file_ = FileDescriptor(::mkostemp(path_.data(), O_CLOEXEC));
        if (!file_.isOpen())
            failure_ = errno;
        exists_ = file_.isOpen();
    }
    ~TemporaryScript() {
        if (exists_)
            ::unlink(path_.c_str());
    }

    void write(std::string_view source) {
        if (exists_ && !writeAll(file_.get(), source))
            failure_ = errno;
        file_.close(); // nobody runs what somebody may still write
    }

    [[nodiscard]] const std::string& path() const { return path_; }
    /// 0 or the error number.
    [[nodiscard]] int failure() const { return failure_; }

private:
    std::string path_;
    FileDescriptor file_;
    bool exists_ = false;
    int failure_ = 0;
};

/// Why a script did not run to a good end, as it is told on the main thread.
struct Failure {
    std::int64_t number = 0;
    std::string_view text; ///< a key of the string table; none for the script's own words
    std::string detail = {};
    std::string further = {};
    int errorNumber = 0; ///< why, in place of the first detail that is empty
};

ScriptError told(const StringTable& strings, Failure failure) {
    if (failure.text.empty())
        return {failure.number, std::move(failure.detail), true};
    if (failure.errorNumber != 0)
        (failure.detail.empty() ? failure.detail : failure.further) =
            reason(strings, failure.errorNumber);
    return {failure.number,
            strings.localizedString(failure.text, {failure.detail, failure.further})};
}

Failure signalFailure(int signal) {
    const char* name = ::sigdescr_np(signal);
    return {signalBase + signal,
            name ? "Signal %1 (%2) ended the script." : "Signal %1 ended the script.",
            std::to_string(signal), name ? name : ""};
}

std::optional<Failure> failureOf(const ProcessOutcome& outcome, const std::string& interpreter) {
    switch (outcome.kind) {
    case ProcessOutcome::Kind::NotStarted:
        return Failure{outcome.number,
                       "Could not start the script's interpreter “%1”: %2.",
                       printableLine(interpreter),
                       {},
                       outcome.number};
    case ProcessOutcome::Kind::Signalled:
        return signalFailure(outcome.number);
    case ProcessOutcome::Kind::Unknown:
        return Failure{ECHILD, "The script has ended, but its result got lost."};
    case ProcessOutcome::Kind::Exited:
        break;
    }
    if (outcome.number == 0)
        return std::nullopt;
    if (!outcome.lastErrorLine.empty())
        return Failure{outcome.number, {}, outcome.lastErrorLine};
    return Failure{outcome.number, "The script failed with exit status %1 and gave no reason.",
                   std::to_string(outcome.number)};
}

Failure preparationFailure(int errorNumber) {
    return {errorNumber, "Could not prepare the script for running: %1.", {}, {}, errorNumber};
}

/// Returns when the script has ended.
std::optional<Failure> runScript(std::string_view source, const RunControl& control) {
    if (source.find('\0') != std::string_view::npos)
        return Failure{EINVAL, "The script contains a NUL character, so it cannot be run."};
    TemporaryScript script;
    ProcessGuard guard(script.path());
    script.write(source);
    for (const int failure : {control.failure(), script.failure(), guard.failure()}) {
        if (failure != 0)
            return preparationFailure(failure);
    }
    std::vector<std::string> command = interpreterOf(source);
    const std::string interpreter = command.front();
    command.push_back(script.path());
    return failureOf(ScriptProcess::run(command, guard, control), interpreter);
}

class PosixScriptRun final : public ScriptRun {
public:
    PosixScriptRun(std::string source, ScriptRunner::Ended ended, const StringTable& strings,
                   PosixScriptRunner::OnMainThread onMainThread)
        : ended_(std::make_shared<ScriptRunner::Ended>(std::move(ended))) {
        const auto report = [&strings, onMainThread = std::move(onMainThread),
                             weak = std::weak_ptr(ended_)](std::optional<Failure> failure) {
            onMainThread([&strings, weak, failure = std::move(failure)] {
                if (const auto listener = weak.lock())
                    (*listener)(failure ? std::optional(told(strings, *failure)) : std::nullopt);
            });
        };
        try {
            thread_ = std::thread([this, source = std::move(source), report] {
                report(runScript(source, control_));
            });
        } catch (const std::system_error& error) {
            report(preparationFailure(error.code().value()));
        }
    }
    ~PosixScriptRun() override {
        ended_.reset(); // the result is dropped
        control_.send(RunControl::Wish::Abandon);
        if (thread_.joinable())
            thread_.join();
    }

    [[nodiscard]] bool canStop() const override { return true; }
    void stop() override { control_.send(RunControl::Wish::Stop); }

private:
    std::shared_ptr<ScriptRunner::Ended> ended_;
    RunControl control_;
    std::thread thread_;
};

} // namespace

std::unique_ptr<ScriptRun> PosixScriptRunner::start(std::string_view source, Ended ended) {
    return std::make_unique<PosixScriptRun>(std::string(source), std::move(ended), strings_,
                                            onMainThread_);
}

} // namespace zarvil::posix
