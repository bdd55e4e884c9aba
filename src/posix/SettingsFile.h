#pragma once

#include "protocol/NonCopyable.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace zarvil::posix {

/// Settings of one user in an INI file, which a reader, a full disk and a crash at any moment leave
/// whole: in its former state or the new one. Lines that nobody understands stay. What cannot be
/// written holds for as long as this object lives, and goes with the next write.
class SettingsFile : NonCopyable {
public:
    /// `tellFault` is called once at the most: when the file cannot be read or written.
    SettingsFile(std::string path, std::function<void()> tellFault);

    /// Empty where the key is not there.
    [[nodiscard]] std::string value(std::string_view section, std::string_view key) const;
    /// On disk when it returns, unless there is a fault. The value is one line without blanks at
    /// its ends; a file that holds it already is not written.
    void setValue(std::string_view section, std::string_view key, std::string_view value);

private:
    using Name = std::pair<std::string, std::string>; ///< section and key

    [[nodiscard]] bool read();
    [[nodiscard]] bool write();
    void report(bool isDone);

    std::string path_;
    std::function<void()> tellFault_; ///< empty once it was called
    std::string content_;             ///< of the file
    std::map<Name, std::string> unwritten_;
};

} // namespace zarvil::posix
