#include "protocol/Messages.h"
#include "protocol/Settings.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace zarvil {
namespace {

QByteArray contents(const char* name) {
    QFile file(QStringLiteral(ZARVIL_DOCS "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

std::string typeName(setting::Type type) {
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

std::map<std::string, std::string> settingTypes() {
    std::map<std::string, std::string> types;
    for (const setting::Description& known : setting::table)
        types.emplace(known.key, typeName(known.type));
    return types;
}

std::map<std::string, std::string> directions() {
    std::map<std::string, std::string> names;
    for (const std::string_view name : message::paneToAgent)
        names.emplace(name, "pane-to-agent");
    for (const std::string_view name : message::agentToPane)
        names.emplace(name, "agent-to-pane");
    return names;
}

/// The signals of the XML by name, each with its annotations.
std::map<std::string, std::map<std::string, std::string>> documentedSignals() {
    std::map<std::string, std::map<std::string, std::string>> documented;
    QXmlStreamReader xml(contents("com.Tessrow.Zarvil.xml"));
    std::string signal;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto attributes = xml.attributes();
        const std::string name = attributes.value("name").toString().toStdString();
        const std::string value = attributes.value("value").toString().toStdString();
        if (xml.name() == u"signal")
            signal = name;
        else if (xml.name() == u"annotation")
            documented[signal].emplace(name, value);
        EXPECT_TRUE(xml.name() != u"arg" || attributes.value("type") == u"a{sv}") << signal;
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return documented;
}

/// The table rows below a heading of the text, as the contents of their cells.
std::vector<QStringList> rowsBelow(const QString& heading) {
    const QString text = QString::fromUtf8(contents("protocol.md"));
    const qsizetype start = text.indexOf("\n## " + heading + "\n");
    EXPECT_GE(start, 0) << qPrintable(heading);
    const qsizetype end = text.indexOf("\n## ", start + 1);
    std::vector<QStringList> rows;
    for (const QString& line : text.mid(start, end - start).split('\n'))
        if (line.startsWith("| `")) {
            QStringList cells = line.mid(2).split(" |");
            for (QString& cell : cells)
                cell = cell.trimmed().remove('`');
            rows.push_back(cells);
        }
    return rows;
}

TEST(ProtocolDocs, xmlHasEveryMessageWithItsDirectionAndNoOther) {
    std::map<std::string, std::string> documented;
    for (const auto& [name, annotations] : documentedSignals()) {
        documented[name] = annotations.at("com.Tessrow.Zarvil.Direction");
        EXPECT_FALSE(annotations.at("org.gtk.GDBus.DocString").empty()) << name;
    }
    EXPECT_EQ(documented, directions());
}

TEST(ProtocolDocs, xmlHasEverySettingWithItsTypeAndNoOther) {
    std::map<std::string, std::string> documented;
    const std::string prefix = "com.Tessrow.Zarvil.Key.";
    for (const auto& [name, type] : documentedSignals()[std::string(message::savedPrefs)])
        if (name.starts_with(prefix))
            documented[name.substr(prefix.size())] = type;
    EXPECT_EQ(documented, settingTypes());
}

TEST(ProtocolDocs, textHasEveryMessageUnderItsDirectionAndNoOther) {
    std::map<std::string, std::string> documented;
    for (const QStringList& row : rowsBelow("From the pane to the agent"))
        documented[row[0].toStdString()] = "pane-to-agent";
    for (const QStringList& row : rowsBelow("From the agent to the pane"))
        documented[row[0].toStdString()] = "agent-to-pane";
    EXPECT_EQ(documented, directions());

    const QRegularExpression name("\\bZV[A-Za-z0-9]+\\b");
    auto match = name.globalMatch(QString::fromUtf8(contents("protocol.md")));
    while (match.hasNext()) {
        const std::string found = match.next().captured().toStdString();
        EXPECT_TRUE(documented.contains(found) || found == message::prefsUserIdWrong) << found;
    }
}

TEST(ProtocolDocs, textHasEverySettingAsTheTableHasItAndNoOther) {
    const auto rows = rowsBelow("Settings");
    ASSERT_EQ(rows.size(), setting::table.size());
    const auto yesNo = [](bool yes) { return QString(yes ? "yes" : "no"); };
    for (const setting::Description& known : setting::table) {
        const QStringList expected{QString::fromStdString(std::string(known.key)),
                                   QString::fromStdString(typeName(known.type)),
                                   yesNo(known.sent == setting::SentByPane::Yes),
                                   yesNo(known.read == setting::ReadByPane::Yes)};
        EXPECT_TRUE(std::ranges::any_of(rows, [&](const QStringList& row) {
            return row.first(4) == expected;
        })) << known.key;
    }
}

} // namespace
} // namespace zarvil
