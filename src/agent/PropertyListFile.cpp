#include "agent/PropertyListFile.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <optional>
#include <type_traits>

namespace zarvil::agent {

namespace {

// Far beyond what passes the bus, and shallow enough to be read by recursion.
constexpr int deepestNesting = 200;
const auto encodingAttribute = QStringLiteral("encoding");
const auto base64 = QStringLiteral("base64");

bool fitsXml(const QString& text) {
    return std::ranges::all_of(
        text, [](QChar c) { return (c >= u' ' && c < u'\ufffe') || c == u'\n' || c == u'\t'; });
}

class Writer {
public:
    explicit Writer(QByteArray* output) : xml_(output) { xml_.setAutoFormatting(true); }

    void writeDocument(const Dictionary& root) {
        xml_.writeStartDocument();
        xml_.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
        xml_.writeStartElement(QStringLiteral("plist"));
        xml_.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
        write(root);
        xml_.writeEndDocument();
    }

private:
    void write(const Value& value) {
        std::visit([this](const auto& held) { write(held); }, value.storage());
    }
    void write(bool value) {
        xml_.writeEmptyElement(value ? QStringLiteral("true") : QStringLiteral("false"));
    }
    void write(std::int64_t value) {
        xml_.writeTextElement(QStringLiteral("integer"), QString::number(value));
    }
    void write(double value) {
        constexpr int exact = 17; // significant digits
        xml_.writeTextElement(QStringLiteral("real"), QString::number(value, 'g', exact));
    }
    void write(const std::string& text) { writeText(QStringLiteral("string"), text); }
    void write(const Data& data) {
        const QByteArray bytes(reinterpret_cast<const char*>(data.data()),
                               static_cast<qsizetype>(data.size()));
        xml_.writeTextElement(QStringLiteral("data"), QString::fromLatin1(bytes.toBase64()));
    }
    void write(const Array& array) {
        xml_.writeStartElement(QStringLiteral("array"));
        for (const Value& element : array)
            write(element);
        xml_.writeEndElement();
    }
    void write(const Dictionary& dictionary) {
        xml_.writeStartElement(QStringLiteral("dict"));
        for (const auto& [key, value] : dictionary.entries()) {
            writeText(QStringLiteral("key"), key);
            write(value);
        }
        xml_.writeEndElement();
    }

    void writeText(const QString& element, const std::string& utf8) {
        const QString text = QString::fromUtf8(utf8);
        xml_.writeStartElement(element);
        if (fitsXml(text)) {
            xml_.writeCharacters(text);
        } else {
            xml_.writeAttribute(encodingAttribute, base64);
            xml_.writeCharacters(QString::fromLatin1(text.toUtf8().toBase64()));
        }
        xml_.writeEndElement();
    }

    QXmlStreamWriter xml_;
};

class Reader {
public:
    explicit Reader(const QByteArray& input) : xml_(input) {}

    std::variant<Dictionary, QString> readDocument() {
        std::optional<Value> root;
        if (xml_.readNextStartElement() && xml_.name() == u"plist" && xml_.readNextStartElement())
            root = read(0);
        else
            fail("it is no property list");
        while (!xml_.atEnd())
            xml_.readNext();
        if (xml_.hasError())
            return QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
        const auto* dictionary = root ? root->as<Dictionary>() : nullptr;
        if (!dictionary)
            return QStringLiteral("it holds no dictionary");
        return *dictionary;
    }

private:
    void fail(const char* reason) { xml_.raiseError(QString::fromLatin1(reason)); }

    /// At a start element; leaves at its end. The value of a faulty element does not matter.
    Value read(int depth) {
        if (depth > deepestNesting) {
            fail("it is nested too deep");
            return false;
        }
        const QString type = xml_.name().toString();
        if (type == u"dict")
            return readDictionary(depth);
        if (type == u"array")
            return readArray(depth);
        if (type == u"true" || type == u"false") {
            xml_.skipCurrentElement();
            return type == u"true";
        }
        return readText(type);
    }

    Value readText(const QString& type) {
        const QString text = readString();
        if (type == u"string" || type == u"date")
            return text.toStdString();
        bool valid = true;
        Value value = false;
        if (type == u"integer")
            value = std::int64_t{text.toLongLong(&valid)};
        else if (type == u"real")
            value = text.toDouble(&valid);
        else if (type == u"data")
            value = dataFrom(text);
        else
            fail("it has an unknown element");
        if (!valid)
            fail("a number is malformed");
        return value;
    }

    static Value dataFrom(const QString& text) {
        const QByteArray bytes = QByteArray::fromBase64(text.toLatin1());
        const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
        return Data(first, first + bytes.size());
    }

    QString readString() {
        const bool encoded = xml_.attributes().value(encodingAttribute) == base64;
        const QString text = xml_.readElementText();
        return encoded ? QString::fromUtf8(QByteArray::fromBase64(text.toLatin1())) : text;
    }

    Value readArray(int depth) {
        Array array;
        while (xml_.readNextStartElement())
            array.push_back(read(depth + 1));
        return array;
    }

    Value readDictionary(int depth) {
        Dictionary dictionary;
        while (xml_.readNextStartElement()) {
            if (xml_.name() != u"key") {
                fail("a key is missing");
                break;
            }
            const std::string key = readString().toStdString();
            if (!xml_.readNextStartElement()) {
                fail("a value is missing");
                break;
            }
            dictionary.setObject(key, read(depth + 1));
        }
        return dictionary;
    }

    QXmlStreamReader xml_;
};

} // namespace

QByteArray writePropertyList(const Dictionary& root) {
    QByteArray xml;
    Writer(&xml).writeDocument(root);
    return xml;
}

std::variant<Dictionary, QString> readPropertyList(const QByteArray& xml) {
    return Reader(xml).readDocument();
}

} // namespace zarvil::agent
