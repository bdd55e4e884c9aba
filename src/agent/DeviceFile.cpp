#include "agent/DeviceFile.h"

#include "protocol/Messages.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace zarvil::agent {

namespace {

Dictionary dictionaryFrom(const QJsonObject& object);

/// Property lists know no null: it reads as an empty text.
Value valueFrom(const QJsonValue& json) {
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        if (json.toVariant().typeId() == QMetaType::LongLong)
            return std::int64_t{json.toInteger()};
        return json.toDouble();
    case QJsonValue::Array: {
        Array array;
        for (const QJsonValue element : json.toArray())
            array.push_back(valueFrom(element));
        return array;
    }
    case QJsonValue::Object:
        return dictionaryFrom(json.toObject());
    default:
        return json.toString().toStdString();
    }
}

Dictionary dictionaryFrom(const QJsonObject& object) {
    Dictionary dictionary;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        dictionary.setObject(entry.key().toStdString(), valueFrom(entry.value()));
    return dictionary;
}

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
