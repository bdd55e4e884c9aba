#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zarvil {

enum class Interaction : std::uint8_t { None, MayAskUser };

/// Whether the user holds a right, and in words why not.
struct AuthorizationOutcome {
    bool granted = false;
    std::string reason;
    std::string missing{}; ///< the authority's name, when there was none that could decide
};

/// Asks the system's authority about rights.
class Authorization : NonCopyable {
public:
    using Reply = std::function<void(const AuthorizationOutcome&)>;

    virtual ~Authorization() = default;

    /// Never waits: the reply comes later on the main thread, once, unless this object goes first.
    virtual void check(std::string_view right, Interaction interaction, Reply reply) = 0;
    /// Gives back what the user has been granted by authenticating; without that, nothing.
    virtual void release(std::string_view right) = 0;
};

} // namespace zarvil
