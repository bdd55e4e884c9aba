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

QJsonValue encoded(const Value& value);

QJsonValue encoded(bool value) { return value; }
QJsonValue encoded(std::int64_t value) { return qint64{value}; }
QJsonValue encoded(double value) { return value; }
QJsonValue encoded(const std::string& text) { return QString::fromUtf8(text); }
QJsonValue encoded(const Data& data) {
    const QByteArray bytes(reinterpret_cast<const char*>(data.data()),
                           static_cast<qsizetype>(data.size()));
    return QString::fromLatin1(bytes.toBase64());
}
QJsonValue encoded(const Array& array) {
    QJsonArray json;
    for (const Value& element : array)
        json.append(encoded(element));
    return json;
}

QJsonValue encoded(const Dictionary& dictionary) { return jsonFrom(dictionary); }

QJsonValue encoded(const Value& value) {
    return std::visit([](const auto& held) -> QJsonValue { return encoded(held); },
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
        object.insert(QString::fromUtf8(key), encoded(value));
    return object;
}

} // namespace zarvil::agent
