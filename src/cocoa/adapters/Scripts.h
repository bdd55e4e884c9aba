#pragma once

#include "platform/ScriptRunner.h"
#include "platform/StringTable.h"

#include <memory>

namespace zarvil::cocoa {

/// Runs scripts in the language of this system: AppleScript where there is one, else what the
/// script's first line asks for. Errors speak the language of the table, which must outlive it.
[[nodiscard]] std::unique_ptr<ScriptRunner> makeScriptRunner(const StringTable& strings);

} // namespace zarvil::cocoa
