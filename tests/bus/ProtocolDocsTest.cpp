#include "protocol/Messages.h"
#include "protocol/Settings.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

namespace zarvil {
namespace {

using Facts = std::map<QString, QString>;

QString contents(const char* name) {
    QFile file(QStringLiteral(ZARVIL_DOCS "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

QString typeName(setting::Type type) {
    switch (type) {
    case setting::Type::Boolean:
        return "boolean";
    case setting::Type::Seconds:
        return "seconds";
    case setting::Type::Text:
        return "string";
    }
    return {};
}

Facts directions() {
    Facts names;
    for (const std::string_view name : message::paneToAgent)
        names.emplace(QString::fromUtf8(name), "pane-to-agent");
    for (const std::string_view name : message::agentToPane)
        names.emplace(QString::fromUtf8(name), "agent-to-pane");
    return names;
}

/// The rows of the text's table below a heading: the first cell, and the others as one.
Facts rowsBelow(const QString& heading) {
    Facts rows;
    const QString section = contents("protocol.md").section("\n## " + heading + "\n", 1);
    for (const QString& line : section.section("\n## ", 0, 0).split('\n'))
        if (line.startsWith("| `"))
            rows.emplace(line.section('`', 1, 1), line.section('|', 2));
    EXPECT_FALSE(rows.empty()) << qPrintable(heading);
    return rows;
}

TEST(ProtocolDocs, xmlHasEveryMessageAndSettingAndNoOther) {
    Facts messages;
    Facts settings;
    QXmlStreamReader xml(contents("com.Tessrow.Zarvil.xml"));
    QString signal;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.attributes().value("name").toString();
        const QString value = xml.attributes().value("value").toString();
        if (xml.name() == u"signal")
            signal = name;
        else if (name == "com.Tessrow.Zarvil.Direction")
            messages.emplace(signal, value);
        else if (name.startsWith("com.Tessrow.Zarvil.Key.") &&
                 signal == QString::fromUtf8(message::savedPrefs))
            settings.emplace(name.section('.', -1), value);
        EXPECT_TRUE(xml.name() != u"arg" || xml.attributes().value("type") == u"a{sv}")
            << qPrintable(signal);
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    EXPECT_EQ(messages, directions());
    Facts types;
    for (const setting::Description& known : setting::table)
        types.emplace(QString::fromUtf8(known.key), typeName(known.type));
    EXPECT_EQ(settings, types);
}

TEST(ProtocolDocs, textHasEveryMessageAndSettingAndNoOther) {
    Facts messages;
    for (const auto& [name, cells] : rowsBelow("From the pane to the agent"))
        messages.emplace(name, "pane-to-agent");
    for (const auto& [name, cells] : rowsBelow("From the agent to the pane"))
        messages.emplace(name, "agent-to-pane");
    EXPECT_EQ(messages, directions());

    const Facts rows = rowsBelow("Settings");
    EXPECT_EQ(rows.size(), setting::table.size());
    for (const setting::Description& known : setting::table) {
        const QString sent = known.sent == setting::SentByPane::Yes ? "yes" : "no";
        const QString read = known.read == setting::ReadByPane::Yes ? "yes" : "no";
        ASSERT_TRUE(rows.contains(QString::fromUtf8(known.key))) << known.key;
        const QString start = " " + typeName(known.type) + " | " + sent + " | " + read + " |";
        EXPECT_TRUE(rows.at(QString::fromUtf8(known.key)).startsWith(start)) << known.key;
    }
}

} // namespace
} // namespace zarvil
