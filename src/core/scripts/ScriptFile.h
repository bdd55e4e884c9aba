#pragma once

#include <string>
#include <string_view>

namespace zarvil {

class FileManager;

/// Folder of the user's shutdown scripts, its tilde not expanded; shared with the agent.
inline constexpr std::string_view kZVScriptingFolder = "~/Library/Zarvil Scripts";

namespace script {

/// Keys of a script record.
inline constexpr std::string_view title = "kZVScriptTitle";
inline constexpr std::string_view text = "kZVScriptText";

inline constexpr std::string_view fileExtension = "zvscript";

/// Where the script of a title is kept. The title is taken as it is: one with a "/" leads into
/// another folder. Repeated and trailing slashes fall away, as the original platform's do.
[[nodiscard]] std::string filePath(const FileManager& files, std::string_view scriptTitle);

/// The file's name without its last extension; a leading dot starts no extension.
[[nodiscard]] std::string titleOfFile(std::string_view fileName);

/// A mark at the start of a file is no part of its text.
[[nodiscard]] std::string withoutByteOrderMark(std::string content);

} // namespace script

} // namespace zarvil
