#include "bus/DBusValues.h"

#include "protocol/NonCopyable.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>

#include <iterator>
#include <limits>
#include <type_traits>

namespace zarvil {

Q_LOGGING_CATEGORY(busLog, "zarvil.bus", QtInfoMsg)

namespace {

// A message holds at most 64 containers within one another, counting arrays, dictionary entries
// and variants; the bus cuts off a sender of more.
constexpr int deepestNesting = 64;
constexpr int levelsOfDictionary = 3; // array, entry, variant
constexpr int levelsOfArray = 2;      // array, variant
constexpr int levelsOfData = 1;
// The longest array, and so the longest payload, is 64 MiB.
constexpr std::size_t longestArray = std::size_t{1} << 26U;
// More than a value's signature, length, padding and, in a dictionary, its entry's padding take.
constexpr std::size_t overhead = 48;

/// A byte that D-Bus cannot carry grows to the three of U+FFFD.
std::size_t sizeBound(const std::string& text) {
    constexpr std::size_t replacement = 3;
    return overhead + replacement * text.size();
}

std::size_t sizeBound(const Value& value);

std::size_t sizeBound(const Dictionary& dictionary) {
    std::size_t size = overhead;
    for (const auto& [key, value] : dictionary.entries())
        size += sizeBound(key) + sizeBound(value);
    return size;
}

/// At least the number of bytes that the value takes on the wire.
std::size_t sizeBound(const Value& value) {
    if (const auto* text = value.as<std::string>())
        return sizeBound(*text);
    if (const auto* data = value.as<Data>())
        return overhead + data->size();
    if (const auto* dictionary = value.as<Dictionary>())
        return sizeBound(*dictionary);
    std::size_t size = overhead;
    if (const auto* array = value.as<Array>())
        for (const Value& element : *array)
            size += sizeBound(element);
    return size;
}

QString encodeText(const std::string& text) {
    QString encoded = QString::fromUtf8(text);
    encoded.replace(QChar::Null, QChar::ReplacementCharacter);
    return encoded;
}

QVariant encode(const Value& value, int depth);

QVariantMap encodeDictionary(const Dictionary& dictionary, int depth) {
    QVariantMap map;
    for (const auto& [key, value] : dictionary.entries()) {
        const QVariant encoded = encode(value, depth + levelsOfDictionary);
        if (encoded.isValid())
            map.insert(encodeText(key), encoded);
    }
    return map;
}

QVariantList encodeArray(const Array& array, int depth) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(array.size()));
    for (const Value& element : array) {
        QVariant encoded = encode(element, depth + levelsOfArray);
        if (encoded.isValid())
            list.append(std::move(encoded));
    }
    return list;
}

int levelsOf(const Value& value) {
    if (value.as<Dictionary>())
        return levelsOfDictionary;
    if (value.as<Array>())
        return levelsOfArray;
    return value.as<Data>() ? levelsOfData : 0;
}

/// Invalid when the value does not fit below the given depth.
QVariant encode(const Value& value, int depth) {
    if (depth + levelsOf(value) > deepestNesting) {
        qCWarning(busLog, "Dropped an entry that is nested too deep to be sent");
        return {};
    }
    return std::visit(
        [depth](const auto& held) -> QVariant {
            using Type = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Type, std::int64_t>)
                return QVariant::fromValue(qlonglong{held});
            else if constexpr (std::is_same_v<Type, std::string>)
                return encodeText(held);
            else if constexpr (std::is_same_v<Type, Data>)
                return QByteArray(reinterpret_cast<const char*>(held.data()),
                                  static_cast<qsizetype>(held.size()));
            else if constexpr (std::is_same_v<Type, Array>)
                return encodeArray(held, depth);
            else if constexpr (std::is_same_v<Type, Dictionary>)
                return encodeDictionary(held, depth);
            else
                return held;
        },
        value.storage());
}

/// What variants within one another hold.
QVariant unwrapped(const QVariant& variant) {
    if (variant.metaType() == QMetaType::fromType<QDBusVariant>())
        return unwrapped(variant.value<QDBusVariant>().variant());
    return variant;
}

QString signatureOf(const QVariant& variant) {
    if (variant.metaType() == QMetaType::fromType<QDBusArgument>())
        return variant.value<QDBusArgument>().currentSignature();
    if (variant.metaType() == QMetaType::fromType<QDBusUnixFileDescriptor>())
        return QStringLiteral("h");
    return QString::fromLatin1(variant.typeName());
}

bool hasTextualKeys(const QDBusArgument& map) {
    constexpr qsizetype keyPosition = 2; // behind "a{"
    const QString signature = map.currentSignature();
    return signature.size() > keyPosition && QStringView(u"sog").contains(signature[keyPosition]);
}

Value decodeUnsigned(qulonglong number) {
    if (number > static_cast<qulonglong>(std::numeric_limits<std::int64_t>::max()))
        return static_cast<double>(number);
    return static_cast<std::int64_t>(number);
}

Data decodeData(const QByteArray& bytes) {
    const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
    return {first, first + bytes.size()};
}

Array decodeTexts(const QStringList& texts) {
    Array array;
    for (const QString& text : texts)
        array.emplace_back(text.toStdString());
    return array;
}

std::optional<Value> decodeBusType(const QVariant& variant) {
    const QMetaType type = variant.metaType();
    if (type == QMetaType::fromType<QDBusObjectPath>())
        return variant.value<QDBusObjectPath>().path().toStdString();
    if (type == QMetaType::fromType<QDBusSignature>())
        return variant.value<QDBusSignature>().signature().toStdString();
    return std::nullopt;
}

/// Empty for a container, and for a value of a foreign type.
std::optional<Value> decode(const QVariant& variant) {
    switch (variant.typeId()) {
    case QMetaType::Bool:
        return variant.toBool();
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return std::int64_t{variant.toLongLong()};
    case QMetaType::ULongLong:
        return decodeUnsigned(variant.toULongLong());
    case QMetaType::Double:
        return variant.toDouble();
    case QMetaType::QString:
        return variant.toString().toStdString();
    case QMetaType::QByteArray:
        return decodeData(variant.toByteArray());
    case QMetaType::QStringList:
        return decodeTexts(variant.toStringList());
    default:
        return decodeBusType(variant);
    }
}

} // namespace

std::optional<QVariantMap> encodePayload(const Dictionary& info) {
    if (sizeBound(info) > longestArray) {
        qCWarning(busLog, "A payload is too large to be sent");
        return std::nullopt;
    }
    return encodeDictionary(info, 0);
}

/// A container that is being read, and what has been read of it.
struct PayloadReader::Level : NonCopyable {
    Level(const QDBusArgument& container, bool withKeys) : rest(container), isMap(withKeys) {
        isMap ? rest.beginMap() : rest.beginArray();
    }
    /// The bus library does not free what was begun and not ended.
    ~Level() { isMap ? rest.endMap() : rest.endArray(); }

    const QDBusArgument rest; ///< constant, for any other would be written to
    const bool isMap;
    Dictionary::Entries entries; ///< of a map
    Array elements;              ///< of an array
    std::string key;             ///< of the map's entry that was read last

    [[nodiscard]] QVariant next() {
        if (!isMap)
            return unwrapped(rest.asVariant());
        QString text;
        rest.beginMapEntry();
        rest >> text;
        QVariant variant = unwrapped(rest.asVariant());
        rest.endMapEntry();
        key = text.toStdString();
        return variant;
    }
    void add(Value value) {
        if (isMap)
            entries.push_back({std::move(key), std::move(value)});
        else
            elements.push_back(std::move(value));
    }
    [[nodiscard]] QString name() const {
        return isMap ? "under \"" + QString::fromUtf8(key) + '"' : QStringLiteral("in an array");
    }
};

PayloadReader::PayloadReader(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.isEmpty())
        return;
    if (arguments.size() > 1)
        qCWarning(busLog, "Ignored further arguments of %s", qUtf8Printable(signal.member()));
    const QVariant payload = unwrapped(arguments.first());
    if (!open(payload) || !levels_.front().isMap) {
        levels_.clear();
        qCWarning(busLog, "Ignored the payload of %s: it has the type %s, not a{sv}",
                  qUtf8Printable(signal.member()), qUtf8Printable(signal.signature()));
    }
}

PayloadReader::PayloadReader(PayloadReader&& other) noexcept = default;
PayloadReader& PayloadReader::operator=(PayloadReader&& other) noexcept = default;
PayloadReader::~PayloadReader() = default;

bool PayloadReader::readUntil(const QDeadlineTimer& end) {
    constexpr int stepsALook = 64; // looking at the clock costs about as much as a step
    for (int step = 1; !isComplete(); ++step) {
        if (step % stepsALook == 0 && end.hasExpired())
            return false;
        readNext();
    }
    return true;
}

void PayloadReader::readNext() {
    Level& level = levels_.back();
    if (level.rest.atEnd())
        close();
    else if (const QVariant variant = level.next(); auto value = decode(variant))
        level.add(std::move(*value));
    else if (!open(variant))
        qCWarning(busLog, "Dropped an entry of the foreign type %s %s",
                  qUtf8Printable(signatureOf(variant)), qUtf8Printable(level.name()));
}

/// Whether it is a container that can be read.
bool PayloadReader::open(const QVariant& variant) {
    if (variant.metaType() != QMetaType::fromType<QDBusArgument>())
        return false;
    const auto argument = variant.value<QDBusArgument>();
    const bool isMap = argument.currentType() == QDBusArgument::MapType;
    if (isMap ? !hasTextualKeys(argument) : argument.currentType() != QDBusArgument::ArrayType)
        return false;
    levels_.emplace_back(argument, isMap);
    return true;
}

void PayloadReader::close() {
    std::list<Level> closed;
    closed.splice(closed.begin(), levels_, std::prev(levels_.end()));
    Level& level = closed.front();
    if (levels_.empty())
        payload_ = Dictionary::ofEntries(std::move(level.entries));
    else if (level.isMap)
        levels_.back().add(Dictionary::ofEntries(std::move(level.entries)));
    else
        levels_.back().add(std::move(level.elements));
}

std::optional<Dictionary> PayloadReader::take() {
    return payload_.count() > 0 ? std::optional(std::move(payload_)) : std::nullopt;
}

std::optional<Dictionary> decodePayload(const QDBusMessage& signal) {
    PayloadReader reader(signal);
    reader.readUntil(QDeadlineTimer::Forever);
    return reader.take();
}

} // namespace zarvil
