#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// Why a script did not run to a good end.
struct ScriptError {
    std::int64_t number = 0;
    std::string message;
    friend bool operator==(const ScriptError&, const ScriptError&) = default;
};

/// Compiles and runs a script's source.
class ScriptRunner : NonCopyable {
public:
    virtual ~ScriptRunner() = default;

    /// Returns when the script has ended; no error means success.
    [[nodiscard]] virtual std::optional<ScriptError> run(std::string_view source) = 0;
};

} // namespace zarvil
