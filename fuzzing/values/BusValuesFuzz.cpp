#include "Input.h"
#include "Values.h"
#include "bus/DBusValues.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVariant>
#include <QLoggingCategory>

#include <optional>
#include <utility>
#include <vector>

/// Property lists over a real connection and back, and whatever else D-Bus can carry: what can be
/// read must arrive, and what cannot must cost no more than itself.
namespace zarvil::fuzz {

class Wire : public QObject {
    Q_OBJECT

public:
    Wire() {
        QLoggingCategory::setFilterRules("zarvil.bus=false");
        server_.setAnonymousAuthenticationAllowed(true);
        connect(&server_, &QDBusServer::newConnection, this,
                [this](const QDBusConnection& connection) {
                    receiving_ = connection;
                    receiving_->connect({}, path, interface, {}, this,
                                        SLOT(receive(const QDBusMessage&)));
                });
        sending_ = QDBusConnection::connectToPeer(server_.address(), "fuzz");
        while (!receiving_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    /// In order. Together, for each crosses two threads, which takes longer than all else.
    std::vector<std::optional<Dictionary>> carry(const QVariantList& arguments) {
        received_.clear();
        for (const QVariant& argument : arguments) {
            QDBusMessage signal = QDBusMessage::createSignal(path, interface, "Anything");
            signal.setArguments({argument});
            require(sending_->send(signal), "a message leaves");
        }
        while (received_.size() < static_cast<std::size_t>(arguments.size()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return received_;
    }

private Q_SLOTS:
    void receive(const QDBusMessage& signal) { received_.push_back(decodePayload(signal)); }

private:
    static constexpr const char* path = "/fuzz";
    static constexpr const char* interface = "fuzz.Fuzz";
    QDBusServer server_;
    std::optional<QDBusConnection> sending_;
    std::optional<QDBusConnection> receiving_;
    std::vector<std::optional<Dictionary>> received_;
};

namespace {

/// As D-Bus can carry it.
std::string carried(const std::string& text) {
    QString string = QString::fromUtf8(text);
    string.replace(QChar::Null, QChar::ReplacementCharacter);
    return string.toStdString();
}

Value carried(const Value& value);

Dictionary carried(const Dictionary& dictionary) {
    Dictionary result;
    for (const auto& [key, value] : dictionary.entries())
        result.setObject(carried(key), carried(value));
    return result;
}

Value carried(const Value& value) {
    if (const auto* text = value.as<std::string>())
        return carried(*text);
    if (const auto* nested = value.as<Dictionary>())
        return carried(*nested);
    if (const auto* array = value.as<Array>()) {
        Array result;
        for (const Value& element : *array)
            result.push_back(carried(element));
        return result;
    }
    return value;
}

/// Equal in kind too: a boolean is no number here.
bool isSame(const Value& left, const Value& right) {
    if (left.storage().index() != right.storage().index() || !(left == right))
        return false;
    if (const auto* array = left.as<Array>())
        return std::equal(array->begin(), array->end(), right.as<Array>()->begin(), isSame);
    const auto* nested = left.as<Dictionary>();
    return !nested || std::equal(nested->entries().begin(), nested->entries().end(),
                                 right.as<Dictionary>()->entries().begin(),
                                 [](const auto& one, const auto& other) {
                                     return isSame(one.value, other.value);
                                 });
}

/// What goes over the wire, and what must be read of it.
struct Sent {
    QVariant variant;
    std::optional<Value> read;
};

template <typename Number>
Sent wholeNumber(Input& input) {
    const auto number = static_cast<Number>(input.word());
    return {QVariant::fromValue(number), Value(static_cast<std::int64_t>(number))};
}

Sent anything(Input& input, int depth);

QVariant wrapped(const QVariant& variant) { return QVariant::fromValue(QDBusVariant(variant)); }

Sent arrayOfVariants(Input& input, int depth) {
    QVariantList list;
    Array read;
    for (std::size_t count = input.below(4); count > 0; --count) {
        Sent element = anything(input, depth + 1);
        list << wrapped(element.variant);
        if (element.read)
            read.push_back(*element.read);
    }
    return {list, Value(read)};
}

Sent dictionaryOfVariants(Input& input, int depth) {
    QVariantMap map;
    Dictionary read;
    for (std::size_t count = input.below(5); count > 0; --count) {
        const std::string key = "k" + std::to_string(count);
        Sent entry = anything(input, depth + 1);
        map.insert(QString::fromStdString(key), entry.variant);
        if (entry.read)
            read.setObject(key, *entry.read);
    }
    return {map, Value(read)};
}

Sent structure(Input& input) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << static_cast<int>(input.byte()) << QStringLiteral("in a structure");
    argument.endStructure();
    return {QVariant::fromValue(argument), std::nullopt};
}

Sent mapWithNumberKeys(Input& input) {
    QDBusArgument argument;
    argument.beginMap(QMetaType::fromType<int>(), QMetaType::fromType<QString>());
    for (int key = static_cast<int>(input.below(3)); key > 0; --key) {
        argument.beginMapEntry();
        argument << key << QStringLiteral("value");
        argument.endMapEntry();
    }
    argument.endMap();
    return {QVariant::fromValue(argument), std::nullopt};
}

Sent mapWithPathKeys(Input& input) {
    QDBusArgument argument;
    Dictionary read;
    argument.beginMap(QMetaType::fromType<QDBusObjectPath>(), QMetaType::fromType<uint>());
    for (std::size_t key = input.below(3); key > 0; --key) {
        const QString path = "/p" + QString::number(key);
        argument.beginMapEntry();
        argument << QDBusObjectPath(path) << uint{7};
        argument.endMapEntry();
        read.setObject(path.toStdString(), 7);
    }
    argument.endMap();
    return {QVariant::fromValue(argument), Value(read)};
}

Sent arrayOfNumbers(Input& input) {
    QDBusArgument argument;
    Array read;
    argument.beginArray(QMetaType::fromType<short>());
    for (std::size_t count = input.below(4); count > 0; --count) {
        const auto number = static_cast<short>(input.byte());
        argument << number;
        read.emplace_back(std::int64_t{number});
    }
    argument.endArray();
    return {QVariant::fromValue(argument), Value(read)};
}

Sent arrayOfPaths(Input& input) {
    QDBusArgument argument;
    argument.beginArray(QMetaType::fromType<QDBusObjectPath>());
    Array read;
    for (std::size_t count = input.below(3); count > 0; --count) {
        argument << QDBusObjectPath("/x");
        read.emplace_back("/x");
    }
    argument.endArray();
    return {QVariant::fromValue(argument), Value(read)};
}

Sent unsignedNumber(Input& input) {
    const qulonglong number = input.word();
    const auto narrow = static_cast<std::int64_t>(number);
    return {QVariant::fromValue(number),
            narrow < 0 ? Value(static_cast<double>(number)) : Value(narrow)};
}

Sent textList(Input& input) {
    QStringList list;
    Array read;
    for (std::size_t count = input.below(4); count > 0; --count) {
        list << QString::number(count);
        read.emplace_back(std::to_string(count));
    }
    return {list, Value(read)};
}

Sent bytes(Input& input) {
    const std::string text = input.text(9);
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {QByteArray::fromStdString(text), Value(Data(first, first + text.size()))};
}

Sent anything(Input& input, int depth) {
    const std::size_t kind = input.below(depth < deepest ? 21 : 16);
    switch (kind) {
    case 0:
        return wholeNumber<uchar>(input);
    case 1:
        return wholeNumber<short>(input);
    case 2:
        return wholeNumber<ushort>(input);
    case 3:
        return wholeNumber<int>(input);
    case 4:
        return wholeNumber<uint>(input);
    case 5:
        return wholeNumber<qlonglong>(input);
    case 6:
        return unsignedNumber(input);
    case 7: {
        const bool flag = input.flag();
        return {flag, Value(flag)};
    }
    case 8: {
        const double number = arbitraryDouble(input);
        return {number, Value(number)};
    }
    case 9: {
        const std::string text = carried(input.text(12));
        return {QString::fromStdString(text), Value(text)};
    }
    case 10:
        return {QVariant::fromValue(QDBusObjectPath("/a/b")), Value("/a/b")};
    case 11:
        return {QVariant::fromValue(QDBusSignature("a{sv}")), Value("a{sv}")};
    case 12:
        return bytes(input);
    case 13:
        return textList(input);
    case 14:
        return structure(input);
    case 15:
        return mapWithNumberKeys(input);
    case 16:
        return arrayOfVariants(input, depth);
    case 17:
        return dictionaryOfVariants(input, depth);
    case 18: {
        Sent inner = anything(input, depth + 1);
        return {wrapped(inner.variant), inner.read};
    }
    case 19:
        return input.flag() ? mapWithPathKeys(input) : arrayOfPaths(input);
    default:
        return arrayOfNumbers(input);
    }
}

Wire& wire() {
    // Neither is destroyed: the bus library's threads outlive the statics.
    static int argumentCount = 0;
    static auto* application = new QCoreApplication(argumentCount, nullptr);
    static auto* made = new Wire;
    static_cast<void>(application);
    return *made;
}

void check(const std::optional<Dictionary>& read, const Dictionary& expected) {
    if (expected.count() == 0)
        require(!read || read->count() == 0, "nothing is read of nothing");
    else
        require(read && isSame(Value(*read), Value(expected)), "all that is readable arrives");
}

/// What is sent, and what must be read of it.
std::pair<QVariant, Dictionary> anyPayload(Input& input) {
    if (input.flag()) {
        const Dictionary info = arbitraryDictionary(input);
        const auto payload = encodePayload(info);
        require(payload.has_value(), "a small payload is sent");
        return {*payload, carried(info)};
    }
    // Now and then no dictionary at all.
    const Sent sent = input.byte() == 1 ? anything(input, 0) : dictionaryOfVariants(input, 0);
    const auto* dictionary = sent.read ? sent.read->as<Dictionary>() : nullptr;
    return {sent.variant, dictionary ? *dictionary : Dictionary()};
}

void tryOne(Input& input) {
    constexpr int mostMessages = 16;
    QVariantList payloads;
    std::vector<Dictionary> expected;
    while (!input.empty() && payloads.size() < mostMessages) {
        auto [payload, read] = anyPayload(input);
        payloads << payload;
        expected.push_back(std::move(read));
    }
    const auto read = wire().carry(payloads);
    for (std::size_t index = 0; index < expected.size(); ++index)
        check(read[index], expected[index]);
}

} // namespace

} // namespace zarvil::fuzz

#include "BusValuesFuzz.moc"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    zarvil::fuzz::Input input(bytes, size);
    zarvil::fuzz::tryOne(input);
    return 0;
}
