#pragma once

#include "platform/UserDefaults.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <map>
#include <string>

namespace zarvil {

/// The user's defaults in an INI file. A file that cannot be read or written is reported to the
/// log once; what was set still holds for as long as this object lives, and goes with the next
/// write. Qt's own settings would leave an empty file where the disk is full.
class QtUserDefaults final : public UserDefaults {
public:
    explicit QtUserDefaults(const QString& path = userFile());

    /// In the user's configuration folder, after the maker's and the application's name.
    [[nodiscard]] static QString userFile();

    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    /// On disk when it returns, since the pane may end this process without warning.
    void setBool(bool value, std::string_view key) override;

private:
    [[nodiscard]] bool read();
    [[nodiscard]] bool write();
    void report();

    QString path_;
    QByteArray content_; ///< of the file, with lines that nobody understands
    std::map<std::string, bool, std::less<>> unwritten_;
    bool reported_ = false;
};

} // namespace zarvil
