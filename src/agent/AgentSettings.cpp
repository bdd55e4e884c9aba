#include "agent/AgentSettings.h"

#include "agent/DeviceRecord.h"
#include "agent/Json.h"
#include "protocol/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace zarvil::agent {

namespace {

// Entries of the file that are no settings.
constexpr std::string_view protectionKey = "Protection";
constexpr std::string_view savedDevicesKey = "SavedDevices";

constexpr int defaultDelay = 60; // seconds

const Dictionary& defaults() {
    static const Dictionary values{
        {std::string(setting::showStatusIcon), true},
        {std::string(setting::newDeviceMessage), true},
        {std::string(setting::shutdownMessage), true},
        {std::string(setting::shutdownDelay), defaultDelay},
        {std::string(setting::showFailNotifi), true},
        {std::string(setting::enableAutomaticChecks), true},
    };
    return values;
}

/// Booleans travel as boolean numbers, so the integers 0 and 1 are booleans as well.
bool isBoolean(const Value& value) {
    const auto* integer = value.as<std::int64_t>();
    return value.as<bool>() || (integer && (*integer == 0 || *integer == 1));
}

bool hasType(const Value& value, setting::Type type) {
    switch (type) {
    case setting::Type::Boolean:
        return isBoolean(value);
    case setting::Type::Seconds:
        return value.as<std::int64_t>() != nullptr;
    case setting::Type::Text:
        return value.as<std::string>() != nullptr;
    }
    return false;
}

/// The setting of that key which can be stored; "Testing" is a state, not a setting to keep.
const setting::Description* storable(std::string_view key) {
    const auto* found = std::ranges::find(setting::table, key, &setting::Description::key);
    return found == setting::table.end() || key == setting::testing ? nullptr : found;
}

Value normalized(const Value& value, setting::Type type) {
    return type == setting::Type::Boolean ? Value(value.boolValue()) : value;
}

} // namespace

AgentSettings::AgentSettings(QString path, AgentLog& log) : path_(std::move(path)), log_(log) {
    read();
}

Dictionary AgentSettings::settings() const {
    Dictionary values;
    for (const setting::Description& known : setting::table) {
        const Value* value = stored_.objectForKey(known.key);
        if (!value)
            value = defaults().objectForKey(known.key);
        if (value)
            values.setObject(known.key, *value);
    }
    return values;
}

bool AgentSettings::store(std::string_view key, const Value& value) {
    const setting::Description* known = storable(key);
    if (!known || !hasType(value, known->type))
        return false;
    stored_.setObject(key, normalized(value, known->type));
    changed_ = true;
    return true;
}

bool AgentSettings::isProtecting() const { return stored_.boolForKey(protectionKey); }

void AgentSettings::setProtecting(bool protecting) {
    stored_.setObject(protectionKey, protecting);
    changed_ = true;
}

bool AgentSettings::addSavedDevice(const Dictionary& device) {
    const bool known = std::ranges::any_of(savedDevices_, [&](const Value& saved) {
        return isSameDevice(*saved.as<Dictionary>(), device);
    });
    if (known)
        return false;
    savedDevices_.emplace_back(device);
    changed_ = true;
    return true;
}

bool AgentSettings::removeSavedDevice(const Dictionary& device) {
    const bool removed = takeDevice(savedDevices_, device).has_value();
    changed_ = changed_ || removed;
    return removed;
}

bool AgentSettings::write() {
    if (!changed_)
        return true;
    Dictionary contents = stored_;
    contents.setObject(savedDevicesKey, savedDevices_);
    QDir().mkpath(QFileInfo(path_).path());
    QSaveFile file(path_);
    // Flushed by itself: `commit` puts the file in place although what it still held back then does
    // not fit on the disk.
    if (file.open(QIODevice::WriteOnly) &&
        file.write(QJsonDocument(jsonFrom(contents)).toJson()) >= 0 && file.flush() &&
        file.commit()) {
        changed_ = false;
        reported_ = false;
        return true;
    }
    if (!std::exchange(reported_, true))
        log_.problem("Cannot write the settings " + path_ + ": " + file.errorString());
    return false;
}

void AgentSettings::read() {
    QFile file(path_);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        keepAside(file.errorString());
        return;
    }
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        keepAside(QStringLiteral("at byte %1: %2").arg(error.offset).arg(error.errorString()));
    else if (!document.isObject())
        keepAside(QStringLiteral("it holds no object"));
    else
        adopt(dictionaryFrom(document.object()));
}

void AgentSettings::adopt(const Dictionary& stored) {
    for (const auto& [key, value] : stored.entries()) {
        const setting::Description* known = storable(key);
        if (known && !hasType(value, known->type))
            log_.problem("Ignored the stored setting " + QString::fromUtf8(key) +
                         ": it has a wrong type");
        else if (key != savedDevicesKey)
            stored_.setObject(key, value);
    }
    const Array* devices = stored.arrayForKey(savedDevicesKey);
    if (!devices && stored.objectForKey(savedDevicesKey))
        log_.problem(QStringLiteral("Ignored the stored devices: they are no list"));
    for (const Value& device : devices ? *devices : Array()) {
        if (device.as<Dictionary>())
            savedDevices_.push_back(device);
        else
            log_.problem(QStringLiteral("Ignored a stored device that is no dictionary"));
    }
}

void AgentSettings::keepAside(const QString& reason) {
    QString aside = path_ + ".unreadable";
    for (int number = 2; QFile::exists(aside); ++number)
        aside = path_ + ".unreadable-" + QString::number(number);
    const bool kept = QFile::rename(path_, aside);
    log_.problem("Cannot read the settings " + path_ + ": " + reason + ". " +
                 (kept ? "They are kept as " + aside : "They could not be kept aside") +
                 "; starting with the defaults");
}

} // namespace zarvil::agent
