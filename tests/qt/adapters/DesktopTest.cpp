#include "interface/Panel.h"
#include "qt/adapters/QtErrorPresenter.h"
#include "qt/adapters/QtModalLoop.h"
#include "qt/adapters/QtStringTable.h"

#include <QApplication>
#include <QMessageBox>
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
    QString translate(const char* context, const char* source, const char*, int) const override {
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
    QCoreApplication::removeTranslator(&table);
}

TEST(QtErrorPresenterTest, showsTheDescriptionAloneAsPlainTextAndWaits) {
    const std::pair<const char*, const char*> cases[] = {
        {"The file <b>x</b> is in use.", "The file <b>x</b> is in use."},
        {"", "The operation could not be completed."}};
    for (const auto& [description, shown] : cases) {
        QString text;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_TRUE(box->informativeText().isEmpty());
            text = box->text();
            box->accept();
        });
        QtErrorPresenter().presentError({"NSCocoaErrorDomain", 513, description});
        EXPECT_EQ(text, shown);
    }
}

} // namespace
} // namespace zarvil
