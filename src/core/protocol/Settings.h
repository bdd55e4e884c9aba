#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// The agent's settings as they travel in the settings messages.
namespace zarvil::setting {

inline constexpr std::string_view launchAtLogin = "LaunchAtLogin";
inline constexpr std::string_view showStatusIcon = "ShowStatusIcon";
inline constexpr std::string_view statusIconMono = "StatusIconMono";
inline constexpr std::string_view useForce = "UseForce";
inline constexpr std::string_view newDeviceMessage = "NewDeviceMessage";
inline constexpr std::string_view shutdownMessage = "ShutdownMessage";
inline constexpr std::string_view hideShutdownMessage = "HideShutdownMessage";
inline constexpr std::string_view shutdownDelay = "ShutdownDelay";
inline constexpr std::string_view showFailNotifi = "ShowFailNotifi";
inline constexpr std::string_view enableAutomaticChecks = "SUEnableAutomaticChecks";
inline constexpr std::string_view testing = "Testing";
inline constexpr std::string_view useScripts = "UseScripts";
inline constexpr std::string_view useEmailNotifi = "UseEmailNotifi";
inline constexpr std::string_view emailAddress = "EmailAddress";
inline constexpr std::string_view usePushover = "UsePushover";
inline constexpr std::string_view pushUserId = "PushUserId";
inline constexpr std::string_view pushDeviceId = "PushDeviceId";

enum class Type : std::uint8_t { Boolean, Seconds, Text };
enum class SentByPane : bool { No, Yes };
enum class ReadByPane : bool { No, Yes };

struct Description {
    std::string_view key;
    Type type;
    SentByPane sent;
    ReadByPane read;
};

inline constexpr std::array table{
    Description{launchAtLogin, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{showStatusIcon, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{statusIconMono, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{useForce, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{newDeviceMessage, Type::Boolean, SentByPane::Yes, ReadByPane::No},
    Description{shutdownMessage, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{hideShutdownMessage, Type::Boolean, SentByPane::No, ReadByPane::Yes},
    Description{shutdownDelay, Type::Seconds, SentByPane::Yes, ReadByPane::Yes},
    Description{showFailNotifi, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{enableAutomaticChecks, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{testing, Type::Boolean, SentByPane::No, ReadByPane::Yes},
    Description{useScripts, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{useEmailNotifi, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{emailAddress, Type::Text, SentByPane::Yes, ReadByPane::Yes},
    Description{usePushover, Type::Boolean, SentByPane::Yes, ReadByPane::Yes},
    Description{pushUserId, Type::Text, SentByPane::Yes, ReadByPane::Yes},
    Description{pushDeviceId, Type::Text, SentByPane::Yes, ReadByPane::Yes},
};

} // namespace zarvil::setting
