#include "agent/DeviceFile.h"

#include "agent/Json.h"
#include "protocol/Messages.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace zarvil::agent {

namespace {

bool isIdentified(const Dictionary& record) {
    return record.stringForKey(payload::deviceName) && record.stringForKey(payload::deviceVendor) &&
           record.stringForKey(payload::deviceSerial);
}

} // namespace

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
