#pragma once

#include <string_view>

/// The product's names, places and outside addresses.
namespace zarvil::product {

inline constexpr std::string_view maker = "Tessrow";
/// The preferences application's name.
inline constexpr std::string_view preferencesName = "Zarvil Preferences";

inline constexpr std::string_view agentIdentifier = "com.Tessrow.Zarvil";
/// Below the root of the installation.
inline constexpr std::string_view agentApplication = "/Applications/Zarvil.app";
/// Below the user's Library folder.
inline constexpr std::string_view paneBundle = "/PreferencePanes/Zarvil Preferences.prefPane";
inline constexpr std::string_view agentSettings = "/Preferences/com.Tessrow.Zarvil.plist";
inline constexpr std::string_view adminRight = "system.privilege.admin";

inline constexpr std::string_view website = "http://www.tessrow.example/";
inline constexpr std::string_view supportPage = "http://www.tessrow.example/zarvil/support";
inline constexpr std::string_view productPage = "http://www.tessrow.example/zarvil";
inline constexpr std::string_view socialPage = "https://social.example/tessrow";
inline constexpr std::string_view composePost = "https://post.example/intent/tweet";
inline constexpr std::string_view hashtag = "#Zarvil";
inline constexpr std::string_view makerAccount = "@tessrow";
inline constexpr std::string_view feedbackMailbox = "feedback@tessrow.example";
inline constexpr std::string_view pushoverSite = "https://pushover.net/";

} // namespace zarvil::product
