#pragma once

/// Where the protocol lives on D-Bus. C strings, as bus libraries take them.
namespace zarvil::bus {

/// The well-known name that the agent owns; also its bundle identifier.
inline constexpr const char* agentName = "com.Tessrow.Zarvil";
/// The well-known name that the preferences application owns; also its bundle identifier.
inline constexpr const char* hostName = "com.Tessrow.Preferences";
/// Object path and interface of every message, in both directions.
inline constexpr const char* path = "/com/Tessrow/Zarvil";
inline constexpr const char* interface = "com.Tessrow.Zarvil";

} // namespace zarvil::bus
