#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

/// Services of a desktop, on a connection of the test's.
namespace zarvil::fake {

/// The settings portal with two settings; an old one knows `Read` alone.
class Portal final : public QDBusVirtualObject {
public:
    explicit Portal(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(path, this);
        EXPECT_TRUE(bus_.registerService("org.freedesktop.portal.Desktop"));
    }
    ~Portal() override { bus_.unregisterService("org.freedesktop.portal.Desktop"); }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        if (call.member() != QLatin1String("ReadAll"))
            return false;
        QMap<QString, QVariantMap> groups;
        for (const QString& group : call.arguments().at(0).toStringList())
            groups.insert(group, values);
        QDBusArgument all;
        all << groups;
        return connection.send(call.createReply(strange ? QVariant(1) : QVariant::fromValue(all)));
    }

    void change(const QString& key, uint value) {
        values[key] = value;
        announce("org.freedesktop.appearance", key, value);
    }
    void announce(const QString& group, const QString& key, uint value) {
        auto signal =
            QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

    QVariantMap values;
    bool strange = false; ///< answers with what is no groups of values

private:
    static constexpr const char* path = "/org/freedesktop/portal/desktop";
    QDBusConnection bus_;
};

/// The authority, polkit. Answers as told, and remembers the last question.
class Authority final : public QDBusVirtualObject {
public:
    explicit Authority(QDBusConnection bus) {
        EXPECT_TRUE(bus.registerVirtualObject("/org/freedesktop/PolicyKit1/Authority", this));
        EXPECT_TRUE(bus.registerService("org.freedesktop.PolicyKit1"));
    }

    /// (authorized, challenge, one detail with the value "t1")
    struct Answer {
        bool authorized = false, challenge = false;
        QString detail;
        QString error, errorText;
    };

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        if (call.member() == QLatin1String("RevokeTemporaryAuthorizationById"))
            revoked = call.arguments().at(0).toString();
        if (call.member() != QLatin1String("CheckAuthorization"))
            return false;
        signature = call.signature();
        const auto subject = call.arguments().at(0).value<QDBusArgument>();
        subject.beginStructure();
        subject >> kind >> subjectDetails;
        subject.endStructure();
        sender = call.service();
        action = call.arguments().at(1).toString();
        const bool asks = call.arguments().at(3).toUInt() == 1;
        questions += asks ? "asks " : "quiet ";
        const Answer& answer = asks ? aloud : quiet;
        connection.send(answer.error.isEmpty()
                            ? call.createReply(result(answer))
                            : call.createErrorReply(answer.error, answer.errorText));
        return true;
    }

    Answer quiet, aloud;
    QString signature, kind, action, sender, questions, revoked;
    QVariantMap subjectDetails;

private:
    static QVariant result(const Answer& answer) {
        QDBusArgument out;
        out.beginStructure();
        out << answer.authorized << answer.challenge;
        out.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QString>());
        if (!answer.detail.isEmpty()) {
            out.beginMapEntry();
            out << answer.detail << QStringLiteral("t1");
            out.endMapEntry();
        }
        out.endMap();
        out.endStructure();
        return QVariant::fromValue(out);
    }
};

} // namespace zarvil::fake
