#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// Why a script did not run to a good end.
struct ScriptError {
    std::int64_t number = 0;
    std::string message;
    /// The message is what the script said last before it exited with `number`.
    bool inItsOwnWords = false;
    friend bool operator==(const ScriptError&, const ScriptError&) = default;
};

/// A script under way. Destroying it ends the script and drops its result, without waiting.
class ScriptRun : NonCopyable {
public:
    virtual ~ScriptRun() = default;

    /// Whether `stop` has an effect.
    [[nodiscard]] virtual bool canStop() const = 0;
    /// Ends the script with all that it has started. Its end is reported as any other.
    virtual void stop() = 0;
};

/// Compiles and runs a script's source.
class ScriptRunner : NonCopyable {
public:
    /// The script has ended; no error means success. The run may be destroyed in it.
    using Ended = std::function<void(const std::optional<ScriptError>&)>;

    virtual ~ScriptRunner() = default;

    /// Calls `ended` once, on the main thread; a runner that cannot but wait for the script's end
    /// does so before it returns.
    [[nodiscard]] virtual std::unique_ptr<ScriptRun> start(std::string_view source,
                                                           Ended ended) = 0;
};

} // namespace zarvil
