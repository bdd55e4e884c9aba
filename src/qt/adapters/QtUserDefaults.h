#pragma once

#include "platform/UserDefaults.h"
#include "posix/SettingsFile.h"

#include <QString>

namespace zarvil {

/// The user's defaults in an INI file. A file that cannot be read or written is reported to the
/// log once.
class QtUserDefaults final : public UserDefaults {
public:
    explicit QtUserDefaults(const QString& path = userFile());

    /// In the user's configuration folder, after the maker's and the application's name.
    [[nodiscard]] static QString userFile();

    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    /// On disk when it returns, since the pane may end this process without warning.
    void setBool(bool value, std::string_view key) override;

private:
    posix::SettingsFile file_;
};

} // namespace zarvil
