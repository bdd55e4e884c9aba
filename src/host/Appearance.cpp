#include "host/Appearance.h"

#include "host/ContrastStyle.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <string>

namespace zarvil::host {

namespace {

constexpr const char* service = "org.freedesktop.portal.Desktop";
constexpr const char* path = "/org/freedesktop/portal/desktop";
constexpr const char* interface = "org.freedesktop.portal.Settings";
constexpr const char* everyDesktops = "org.freedesktop.appearance";
constexpr const char* gnomes = "org.gnome.desktop.interface";
/// Groups of keys with their values, as D-Bus types.
constexpr const char* groupsType = "a{sa{sv}}";

// Values of the portal's "color-scheme"; anything else is no preference.
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;
constexpr uint preferHighContrast = 1;

constexpr const char* section = "appearance";

} // namespace

std::optional<AppearanceChoice> appearanceChoice(const QString& text) {
    if (text == QLatin1String("auto"))
        return AppearanceChoice::Auto;
    if (text == QLatin1String("light"))
        return AppearanceChoice::Light;
    if (text == QLatin1String("dark"))
        return AppearanceChoice::Dark;
    return std::nullopt;
}

Appearance::Appearance(AppearanceChoice choice, posix::SettingsFile& settings)
    : choice_(choice),
      settings_(settings),
      desktopPalette_(QApplication::palette()),
      desktopStyle_(QApplication::style()->name()),
      scheme_{everyDesktops, "color-scheme", "scheme", 0},
      contrast_{everyDesktops, "contrast", "contrast", 0},
      reducedMotion_{everyDesktops, "reduced-motion", "reduced-motion", 0},
      animations_{gnomes, "enable-animations", "animations", 1} {
    for (Preference* preference : preferences_) {
        bool isNumber = false;
        const auto stored = settings_.value(section, preference->stored);
        const uint value = QByteArray::fromStdString(stored).toUInt(&isNumber);
        preference->value = isNumber ? value : preference->unanswered;
    }
    apply();
}

Look Appearance::look() const {
    Look look{isDark(desktopPalette_), contrast_.value == preferHighContrast};
    if (choice_ != AppearanceChoice::Auto)
        look.dark = choice_ == AppearanceChoice::Dark;
    else if (scheme_.value == preferDark || scheme_.value == preferLight)
        look.dark = scheme_.value == preferDark;
    return look;
}

void Appearance::follow(MessageBus& session) {
    session_ = session.observe([this, &session](BusState) {
        changes_.reset();
        bus_ = session.connection();
        if (!bus_)
            return;
        // From any sender: naming the portal here would make Qt wait for the bus to say who that
        // is. So the signal is only a hint, and the portal itself is asked for the value.
        changes_.emplace(*bus_, SignalHook::Signal{path, interface, "SettingChanged"},
                         [this](const QDBusMessage& signal) { settingChanged(signal); });
        ask();
    });
}

void Appearance::ask() {
    auto call = QDBusMessage::createMethodCall(service, path, interface, "ReadAll");
    call << QStringList{everyDesktops, gnomes};
    auto* watcher = new QDBusPendingCallWatcher(bus_->asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (bus_) // otherwise what it said last holds
            accept(watcher->reply());
    });
}

void Appearance::settingChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    const QString group = arguments.value(0).toString();
    const QString key = arguments.value(1).toString();
    const bool concerns = std::ranges::any_of(preferences_, [&](const Preference* preference) {
        return group == QLatin1String(preference->group) && key == QLatin1String(preference->key);
    });
    if (concerns && bus_)
        ask();
}

/// A portal that is missing, or that answers anything else, has no values.
void Appearance::accept(const QDBusMessage& reply) {
    QMap<QString, QVariantMap> groups;
    if (reply.type() == QDBusMessage::ReplyMessage &&
        reply.signature() == QLatin1String(groupsType))
        reply.arguments().constFirst().value<QDBusArgument>() >> groups;
    bool changed = false;
    for (Preference* preference : preferences_) {
        const QVariant value = groups.value(preference->group).value(preference->key);
        const uint wanted = value.isValid() ? value.toUInt() : preference->unanswered;
        if (wanted == preference->value)
            continue;
        preference->value = wanted;
        settings_.setValue(section, preference->stored, std::to_string(wanted));
        changed = true;
    }
    if (changed)
        apply();
}

/// The desktop's own palette and style stay where they already look as wanted.
void Appearance::apply() {
    // What the pane asks before it lets anything glide.
    QApplication::setEffectEnabled(Qt::UI_General,
                                   reducedMotion_.value == 0 && animations_.value != 0);
    const Look wanted = look();
    const bool desktopFits = !wanted.highContrast && wanted.dark == isDark(desktopPalette_);
    const QString style = desktopFits ? desktopStyle_ : QStringLiteral("fusion");
    const bool isContrast = qobject_cast<ContrastStyle*>(QApplication::style());
    if (wanted.highContrast && !isContrast)
        QApplication::setStyle(new ContrastStyle);
    else if (!wanted.highContrast &&
             (isContrast || QApplication::style()->name().compare(style, Qt::CaseInsensitive) != 0))
        QApplication::setStyle(style);
    const QPalette palette = desktopFits ? desktopPalette_ : paletteFor(wanted);
    if (QApplication::palette() == palette)
        return;
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace zarvil::host
