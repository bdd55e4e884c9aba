#pragma once

#include "platform/ScriptRunner.h"

namespace zarvil::posix {

/// Runs a script through the interpreter of its "#!" line, else through `/bin/sh`. The number of
/// its error is the exit status; for a script that a signal ended, 128 and the signal, as a shell
/// has it; for one that could not be started, the system's error number.
class PosixScriptRunner final : public ScriptRunner {
public:
    [[nodiscard]] std::optional<ScriptError> run(std::string_view source) override;
};

} // namespace zarvil::posix
