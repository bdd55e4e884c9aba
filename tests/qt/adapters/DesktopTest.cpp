#include "interface/Panel.h"
#include "qt/adapters/QtCursor.h"
#include "qt/adapters/QtErrorPresenter.h"
#include "qt/adapters/QtModalLoop.h"
#include "qt/adapters/QtMouseParameters.h"
#include "qt/adapters/QtStringTable.h"

#include <QApplication>
#include <QMessageBox>
#include <QStyleHints>
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

TEST(QtModalLoopTest, endingTheApplicationEndsEveryLoop) {
    QtModalLoop modal;
    Panel panel;
    int returned = 0;
    const auto run = [&] {
        modal.runModalForWindow(panel);
        ++returned;
    };
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] {
            QTimer::singleShot(0, [] { QCoreApplication::exit(7); });
            run();
        });
        run();
    });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_EQ(returned, 2);
    modal.stopModal(); // refers to no loop that is gone
}

class Table final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        if (QByteArray(context) != "MainBundle")
            return {};
        if (QByteArray(source) == "Test Message")
            return QStringLiteral("Prüfnachricht");
        return QByteArray(source) == "Emptied" ? QStringLiteral("") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(QtStringTableTest, theKeyStandsInForWhatIsNotTranslated) {
    Table table;
    QCoreApplication::installTranslator(&table);
    const QtStringTable strings;
    EXPECT_EQ(strings.localizedString("Test Message"), "Prüfnachricht");
    for (const char* key : {"Emptied", "Unknown", "100 % \xE2\x82\xAC", ""})
        EXPECT_EQ(strings.localizedString(key), key);
    // A key that is part of a longer text, not ended by a zero.
    EXPECT_EQ(strings.localizedString(std::string_view("Test Message and more", 12)),
              "Prüfnachricht");
    QCoreApplication::removeTranslator(&table);
}

TEST(QtErrorPresenterTest, showsTheDescriptionAloneAsPlainTextAndWaits) {
    const struct {
        const char* description;
        const char* shown;
    } cases[] = {{"The file <b>x</b> is in use.", "The file <b>x</b> is in use."},
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

TEST(QtMouseParametersTest, areTheDesktopsClickLimits) {
    QApplication::styleHints()->setMouseDoubleClickInterval(350);
    QApplication::styleHints()->setStartDragDistance(7);
    const auto click = QtMouseParameters().stickyClick();
    ASSERT_TRUE(click);
    EXPECT_DOUBLE_EQ(click->timeout, 0.35);
    EXPECT_DOUBLE_EQ(click->bias.width, 7);
    EXPECT_DOUBLE_EQ(click->bias.height, 7);
}

TEST(QtCursorTest, changesItsWidgetAloneAndOutlivesIt) {
    auto window = std::make_unique<QWidget>();
    auto* link = new QWidget(window.get());
    QtCursor cursor(*link);
    cursor.set(CursorShape::PointingHand);
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
    cursor.set(CursorShape::Arrow);
    EXPECT_FALSE(link->testAttribute(Qt::WA_SetCursor));
    window.reset();
    cursor.set(CursorShape::PointingHand);
}

} // namespace
} // namespace zarvil
