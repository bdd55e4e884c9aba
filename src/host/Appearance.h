#pragma once

#include "host/Palettes.h"

#include "bus/MessageBus.h"
#include "bus/SignalHook.h"
#include "posix/SettingsFile.h"

#include <QObject>

#include <array>
#include <optional>

namespace zarvil::host {

enum class AppearanceChoice { Auto, Light, Dark };

/// Nothing for a text that names no choice.
[[nodiscard]] std::optional<AppearanceChoice> appearanceChoice(const QString& text);

/// Keeps the application's palette, and whether it moves anything, as the user wants the desktop to
/// look. Asks the settings portal and follows it; until it answers, what it said at the last start
/// holds. Without a portal the desktop's own palette decides. Needs the application object, and no
/// window yet.
class Appearance final : public QObject {
public:
    Appearance(AppearanceChoice choice, posix::SettingsFile& settings);

    /// Asks the portal of every connection to the session bus, without waiting.
    void follow(MessageBus& session);
    [[nodiscard]] Look look() const;

private:
    struct Preference {
        const char* group;
        const char* key;
        const char* stored; ///< key of the settings
        uint unanswered;    ///< holds where no portal knows the key
        uint value = unanswered;
    };

    void ask();
    void settingChanged(const QDBusMessage& signal);
    void accept(const QDBusMessage& reply);
    void apply();

    AppearanceChoice choice_;
    posix::SettingsFile& settings_;
    std::optional<QDBusConnection> bus_;
    std::optional<SignalHook> changes_;
    QPalette desktopPalette_;
    QString desktopStyle_;
    Preference scheme_;
    Preference contrast_;
    Preference reducedMotion_;
    Preference animations_; ///< GNOME's own key, which is older than the one for all desktops
    const std::array<Preference*, 4> preferences_{&scheme_, &contrast_, &reducedMotion_,
                                                  &animations_};
    Subscription session_;
};

} // namespace zarvil::host
