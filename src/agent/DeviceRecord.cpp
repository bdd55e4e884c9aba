#include "agent/DeviceRecord.h"

#include "agent/Json.h"
#include "protocol/Messages.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace zarvil::agent {

namespace {

constexpr std::array identityKeys{payload::deviceName, payload::deviceVendor,
                                  payload::deviceSerial};

bool isIdentified(const Dictionary& record) {
    return record.stringForKey(payload::deviceName) && record.stringForKey(payload::deviceVendor) &&
           record.stringForKey(payload::deviceSerial);
}

} // namespace

Dictionary deviceRecord(std::string_view name, std::string_view vendor, std::string_view serial) {
    Dictionary record;
    record.setObject(payload::deviceName, name);
    record.setObject(payload::deviceVendor, vendor);
    record.setObject(payload::deviceSerial, serial.empty() ? payload::unknownSerial : serial);
    return record;
}

bool isSameDevice(const Dictionary& left, const Dictionary& right) {
    return std::ranges::all_of(identityKeys, [&](std::string_view key) {
        const std::string* one = left.stringForKey(key);
        const std::string* other = right.stringForKey(key);
        return one && other && *one == *other;
    });
}

std::optional<Dictionary> takeDevice(Array& records, const Dictionary& device) {
    auto found = std::ranges::find(records, Value(device));
    if (found == records.end())
        found = std::ranges::find_if(records, [&](const Value& record) {
            const auto* dictionary = record.as<Dictionary>();
            return dictionary && isSameDevice(*dictionary, device);
        });
    if (found == records.end())
        return std::nullopt;
    const Dictionary taken = *found->as<Dictionary>();
    records.erase(found);
    return taken;
}

std::string describe(const Dictionary& device) {
    std::string text;
    for (const std::string_view key : identityKeys) {
        const std::string* part = device.stringForKey(key);
        text += (text.empty() ? "" : ", ") + (part ? *part : std::string("?"));
    }
    return text;
}

DeviceFileContents parseDevices(const QByteArray& json) {
    DeviceFileContents contents;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        contents.problems
            << QStringLiteral("at byte %1: %2").arg(error.offset).arg(error.errorString());
    else if (!document.isArray())
        contents.problems << QStringLiteral("it is no list");
    const QJsonArray entries = document.array();
    for (qsizetype index = 0; index < entries.size(); ++index) {
        const QString where = QStringLiteral("entry %1 ").arg(index + 1);
        if (!entries[index].isObject()) {
            contents.problems << where + "is no device record";
            continue;
        }
        Dictionary record = dictionaryFrom(entries[index].toObject());
        // Passed on all the same: the pane must cope with such records.
        if (!isIdentified(record))
            contents.problems << where + "lacks its name, vendor or serial as text";
        contents.devices.emplace_back(std::move(record));
    }
    return contents;
}

DeviceFileContents readDeviceFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {file.errorString()}};
    return parseDevices(file.readAll());
}

} // namespace zarvil::agent
