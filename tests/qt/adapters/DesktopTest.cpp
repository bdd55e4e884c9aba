#include "interface/Panel.h"
#include "qt/adapters/QtRunLoop.h"
#include "qt/adapters/QtStringTable.h"

#include <QCoreApplication>
#include <QTimer>
#include <QTranslator>

#include <gtest/gtest.h>

namespace zarvil {
namespace {

TEST(QtModalLoopTest, stoppingEndsTheInnermostLoopAfterTheAction) {
    QtModalLoop modal;
    Panel outer;
    Panel inner;
    std::vector<std::string> log;
    modal.stopModal(); // without a loop: nothing, and the next loop still waits
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] {
            modal.stopModal();
            modal.stopModal(); // still the same loop
            log.emplace_back("stopped inner");
        });
        modal.runModalForWindow(inner);
        log.emplace_back("inner returned");
        QTimer::singleShot(0, [&] {
            log.emplace_back("outer still runs");
            modal.stopModal();
        });
    });
    modal.runModalForWindow(outer);
    const std::vector<std::string> expected{"stopped inner", "inner returned", "outer still runs"};
    EXPECT_EQ(log, expected);
}

class Table final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int n) const override {
        if (QByteArray(source) == "%n rows")
            return n == 1 || n == -1 ? QStringLiteral("%n row") : QStringLiteral("%n rows");
        const bool known = QByteArray(context) == "MainBundle" && QByteArray(source) == "Message";
        return known ? QStringLiteral("Prüfnachricht") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(QtStringTableTest, theKeyStandsInForWhatIsNotTranslated) {
    Table table;
    QCoreApplication::installTranslator(&table);
    const QtStringTable strings;
    // A key that is part of a longer text, not ended by a zero.
    EXPECT_EQ(strings.localizedString(std::string_view("Message and more", 7)), "Prüfnachricht");
    for (const char* key : {"Unknown", ""})
        EXPECT_EQ(strings.localizedString(key), key);
    for (const char* known : {"row", "thing"}) {
        const std::string one = std::string("%n ") + known;
        EXPECT_EQ(strings.localizedCount(one, one + "s", 1), std::string("1 ") + known);
        EXPECT_EQ(strings.localizedCount(one, one + "s", 2), std::string("2 ") + known + "s");
    }
    QCoreApplication::removeTranslator(&table);
}

} // namespace
} // namespace zarvil
