#pragma once

#include "platform/ScriptRunner.h"

#include <memory>

namespace zarvil::cocoa {

/// Runs scripts in the language of this system: AppleScript where there is one, else what the
/// script's first line asks for.
[[nodiscard]] std::unique_ptr<ScriptRunner> makeScriptRunner(const StringTable& strings);

} // namespace zarvil::cocoa
