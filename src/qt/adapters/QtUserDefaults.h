#pragma once

#include "platform/UserDefaults.h"

#include <QSettings>
#include <QString>

namespace zarvil {

/// The user's defaults in an INI file. A file that cannot be read or written is reported to the
/// log once; what was set still holds for as long as this object lives.
class QtUserDefaults final : public UserDefaults {
public:
    explicit QtUserDefaults(const QString& path = userFile());

    /// In the user's configuration folder, after the maker's and the application's name.
    [[nodiscard]] static QString userFile();

    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    /// On disk when it returns, since the pane may end this process without warning.
    void setBool(bool value, std::string_view key) override;

private:
    void keepCorruptFile();
    void reportFailure();

    mutable QSettings settings_;
    bool reported_ = false;
};

} // namespace zarvil
