#pragma once

#include "host/Palettes.h"

#include "bus/MessageBus.h"

#include <QObject>

#include <optional>

class QSettings;

namespace zarvil::host {

enum class AppearanceChoice { Auto, Light, Dark };

/// Nothing for a text that names no choice.
[[nodiscard]] std::optional<AppearanceChoice> appearanceChoice(const QString& text);

/// Keeps the application's palette as the user wants the desktop to look. Asks the settings portal
/// and follows it; until it answers, what it said at the last start holds. Without a portal the
/// desktop's own palette decides. Needs the application object, and no window yet.
class Appearance final : public QObject {
    Q_OBJECT
public:
    Appearance(AppearanceChoice choice, QSettings& settings);

    /// Asks the portal of every connection to the session bus, without waiting.
    void follow(MessageBus& session);
    [[nodiscard]] Look look() const;

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key);

private:
    struct Preference {
        const char* key;
        const char* stored;
        uint value;
    };

    void ask(Preference& preference, const char* method);
    void accept(Preference& preference, const QVariant& value);
    void apply();

    AppearanceChoice choice_;
    QSettings& settings_;
    std::optional<QDBusConnection> bus_;
    QPalette desktopPalette_;
    QString desktopStyle_;
    Preference scheme_;
    Preference contrast_;
    Subscription session_;
};

} // namespace zarvil::host
