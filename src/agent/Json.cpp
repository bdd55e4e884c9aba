#include "agent/Json.h"

#include <QJsonArray>
#include <QMetaType>

namespace zarvil::agent {

namespace {

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

QJsonValue jsonFrom(const Value& value);

QJsonValue jsonFrom(bool value) { return value; }
QJsonValue jsonFrom(std::int64_t value) { return qint64{value}; }
QJsonValue jsonFrom(double value) { return value; }
QJsonValue jsonFrom(const std::string& text) { return QString::fromUtf8(text); }
QJsonValue jsonFrom(const Data& data) {
    const QByteArray bytes(reinterpret_cast<const char*>(data.data()),
                           static_cast<qsizetype>(data.size()));
    return QString::fromLatin1(bytes.toBase64());
}
QJsonValue jsonFrom(const Array& array) {
    QJsonArray json;
    for (const Value& element : array)
        json.append(jsonFrom(element));
    return json;
}

QJsonValue jsonFrom(const Value& value) {
    return std::visit([](const auto& held) -> QJsonValue { return jsonFrom(held); },
                      value.storage());
}

} // namespace

Dictionary dictionaryFrom(const QJsonObject& object) {
    Dictionary dictionary;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        dictionary.setObject(entry.key().toStdString(), valueFrom(entry.value()));
    return dictionary;
}

QJsonObject jsonFrom(const Dictionary& dictionary) {
    QJsonObject object;
    for (const auto& [key, value] : dictionary.entries())
        object.insert(QString::fromUtf8(key), jsonFrom(value));
    return object;
}

} // namespace zarvil::agent
