#pragma once

#include "platform/ScriptRunner.h"
#include "platform/StringTable.h"

namespace zarvil::posix {

/// Runs a script through the interpreter of its "#!" line, else through `/bin/sh`. The number of
/// its error is the exit status; for a script that a signal ended, 128 and the signal, as a shell
/// has it; for one that could not be started, the system's error number. A thread of its own waits
/// for each script.
class PosixScriptRunner final : public ScriptRunner {
public:
    /// Has a call made on the main thread, soon; itself called on any thread.
    using OnMainThread = std::function<void(std::function<void()>)>;

    /// Errors speak the language of the string table, which is asked on the main thread and must
    /// outlive the runs.
    PosixScriptRunner(const StringTable& strings, OnMainThread onMainThread)
        : strings_(strings), onMainThread_(std::move(onMainThread)) {}

    [[nodiscard]] std::unique_ptr<ScriptRun> start(std::string_view source, Ended ended) override;

private:
    const StringTable& strings_;
    OnMainThread onMainThread_;
};

} // namespace zarvil::posix
