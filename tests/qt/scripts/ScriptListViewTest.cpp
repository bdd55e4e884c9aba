#include "qt/scripts/ScriptListView.h"
#include "../core/scripts/ScriptsHarness.h"
#include "qt/scripts/ScriptCard.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

namespace zarvil::qt {
namespace {

class ScriptListViewTest : public ScriptsHarness {
protected:
    void show(int height = 400) {
        pane.scriptsCollection.setAlphaValue(alpha::active);
        pane.willSelect();
        pane.loadScripts();
        view.setModel(pane.scriptsCollection);
        view.resize(640, height);
        view.show();
        view.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        settle();
    }
    static void settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Cards in use, from top to bottom.
    std::vector<ScriptCard*> cards() {
        std::vector<ScriptCard*> used;
        for (ScriptCard* card : view.findChildren<ScriptCard*>()) {
            if (card->item())
                used.push_back(card);
        }
        std::ranges::sort(used, {}, [](const ScriptCard* card) { return card->y(); });
        return used;
    }
    ScriptCard& card(std::string_view title) {
        for (ScriptCard* each : cards()) {
            if (*each->item()->representedObject()->contents().stringForKey(script::title) == title)
                return *each;
        }
        throw std::runtime_error("no card " + std::string(title));
    }
    static QPushButton& button(const ScriptCard& card, const char* text) {
        for (QPushButton* each : card.findChildren<QPushButton*>()) {
            if (each->text() == QLatin1String(text))
                return *each;
        }
        throw std::runtime_error(std::string("no button ") + text);
    }
    static void click(const ScriptCard& card, const char* text) {
        QTest::mouseClick(&button(card, text), Qt::LeftButton);
        settle();
    }
    static QLineEdit& titleField(const ScriptCard& card) { return *card.findChild<QLineEdit*>(); }
    static QPlainTextEdit& textField(const ScriptCard& card) {
        return *card.findChild<QPlainTextEdit*>();
    }

    ScriptListView view;
};

TEST_F(ScriptListViewTest, tenThousandScriptsNeedWidgetsForTheRowsInSightAlone) {
    for (int index = 0; index < 10000; ++index)
        put("s" + std::to_string(10000 + index) + ".zvscript", "text");
    show();
    EXPECT_EQ(view.rowCount(), 10000);
    QScrollBar& bar = *view.verticalScrollBar();
    for (int step = 0; step <= 100; ++step) {
        bar.setValue(bar.maximum() * step / 100);
        EXPECT_LE(view.findChildren<ScriptCard*>().size(), 16);
    }
    const ScriptCard& last = card("s19999");
    EXPECT_LE(last.geometry().bottom(), view.viewport()->height());
}

TEST_F(ScriptListViewTest, theEditFieldsStandAtTheirFramesInTheirFonts) {
    put("a.zvscript", "echo a");
    show();
    EXPECT_EQ(button(card("a"), "Remove").accessibleName(), "Remove “a”");
    const QRect edit = button(card("a"), "Edit").geometry();
    click(card("a"), "Edit");
    EXPECT_EQ(button(card("a"), "Done").geometry().topLeft(), edit.topLeft())
        << "under the pointer";
    const int bottom = card("a").height();
    EXPECT_EQ(titleField(card("a")).geometry(), QRect(15, bottom - 134, 490, 26));
    EXPECT_EQ(textField(card("a")).geometry(), QRect(20, bottom - 80, 558, 70));
    EXPECT_FALSE(button(card("a"), "Done").geometry().intersects(titleField(card("a")).geometry()));
    EXPECT_EQ(titleField(card("a")).font().pixelSize(), 15);
    EXPECT_EQ(textField(card("a")).font().pixelSize(), 13);
    EXPECT_EQ(titleField(card("a")).text(), "a");
    EXPECT_EQ(textField(card("a")).toPlainText(), "echo a");
    EXPECT_TRUE(titleField(card("a")).hasFocus());
    QTest::keyClick(&titleField(card("a")), Qt::Key_Tab);
    EXPECT_TRUE(textField(card("a")).hasFocus());
    click(card("a"), "Done");
    EXPECT_TRUE(button(card("a"), "Edit").hasFocus());
}

TEST_F(ScriptListViewTest, aFieldThatIsGoneLeavesNothingForAnAssistiveProgram) {
    put("a.zvscript", "echo a");
    show();
    click(card("a"), "Edit");
    const auto idOf = [](QWidget& field) {
        return QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&field));
    };
    const QAccessible::Id fields[] = {idOf(titleField(card("a"))), idOf(textField(card("a")))};
    click(card("a"), "Done");
    for (const QAccessible::Id field : fields)
        EXPECT_EQ(QAccessible::accessibleInterface(field), nullptr) << "the next has its address";
}

TEST_F(ScriptListViewTest, aDraftThatWasNotSavedComesBackAndSaysSoUntilItIs) {
    put("a.zvscript", "echo a");
    show();
    files.failing = {pathOf("a.zvscript")};
    click(card("a"), "Edit");
    QTest::keyClicks(&textField(card("a")), "x");
    click(card("a"), "Done");
    pane.unloadScripts();
    settle();
    EXPECT_TRUE(cards().empty());
    pane.loadScripts();
    settle();
    EXPECT_EQ(textField(card("a")).toPlainText(), "xecho a");
    const auto isNoted = [this] {
        return std::ranges::any_of(card("a").findChildren<QLabel*>(), [](const QLabel* label) {
            return label->isVisible() && label->text() == "Not saved";
        });
    };
    EXPECT_TRUE(isNoted());
    files.failing.clear();
    click(card("a"), "Done");
    EXPECT_FALSE(isNoted());
}

TEST_F(ScriptListViewTest, whatTheUserLeavesAloneKeepsItsBytes) {
    struct Case {
        std::string text, typed, saved;
    };
    const Case cases[] = {
        {"a\r\nb\r\n", "", "a\r\nb\r\n"},
        {"a\r\nb\r\n", "x", "xa\r\nb\r\n"},
        {"no\u00A0break\tkept", "x", "xno\u00A0break\tkept"},
        {"mixed\r\nends\n", "", "mixed\r\nends\n"},
        {"#!/bin/sh\nprintf 'a\r\n'", "x", "x#!/bin/sh\nprintf 'a\n'"},
        {std::string(2 << 20, 'l'), "x", std::string(2 << 20, 'l')},
    };
    for (const auto& [text, typed, saved] : cases) {
        put("a\xFF.zvscript", text);
        pane.unloadScripts();
        show();
        click(card("a\xFF"), "Edit");
        QTest::keyClicks(&textField(card("a\xFF")), QString::fromUtf8(typed));
        click(card("a\xFF"), "Done");
        EXPECT_TRUE(files.files[pathOf("a\xFF.zvscript")] == saved) << text.substr(0, 20);
    }
}

TEST_F(ScriptListViewTest, escapeLeavesEditingAndDropsNothingThatWasTyped) {
    put("a.zvscript", "echo a");
    show();
    click(card("a"), "Edit");
    QTest::keyClick(&titleField(card("a")), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(button(card("a"), "Edit").hasFocus()) << "nothing was typed";
    click(card("a"), "Edit");
    QTest::keyClicks(&textField(card("a")), "x");
    for (int stroke = 0; stroke < 2; ++stroke)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(textField(card("a")).toPlainText(), "xecho a");
    QPushButton& cancel = button(card("a"), "Cancel");
    EXPECT_TRUE(cancel.hasFocus());
    EXPECT_FALSE(cancel.geometry().intersects(button(card("a"), "Run").geometry()));
    QTest::keyClick(&cancel, Qt::Key_Space);
    settle();
    EXPECT_TRUE(button(card("a"), "Edit").hasFocus());
    EXPECT_FALSE(button(card("a"), "Cancel").isVisible());
    EXPECT_EQ(files.files[pathOf("a.zvscript")], "echo a");
}

TEST_F(ScriptListViewTest, aRemovedCardLeavesTheKeyboardToTheOneInItsPlace) {
    for (const char* name : {"a", "b"})
        put(std::string(name) + ".zvscript", "");
    show();
    button(card("a"), "Remove").setFocus();
    click(card("a"), "Remove");
    EXPECT_TRUE(button(card("b"), "Edit").hasFocus());
}

TEST_F(ScriptListViewTest, nothingLeavesItsCardHoweverNarrowOrLarge) {
    put("a.zvscript", "echo " + std::string(200, 'a'));
    show();
    const std::string reason(200, 'x');
    card("a").item()->setOutcome({"Failed with exit status 3: " + reason, true});
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const int points : {10, 18, 30}) {
            view.setLayoutDirection(direction);
            view.setFont(QFont(view.font().family(), points));
            view.resize(300, 600);
            click(card("a"), "Edit");
            for (const char* text : {"Run", "Cancel", "Remove", "Done"})
                EXPECT_TRUE(card("a").rect().contains(button(card("a"), text).geometry()))
                    << points << text;
            click(card("a"), "Done");
            for (const auto* label : card("a").findChildren<QLabel*>())
                EXPECT_TRUE(!label->isVisible() ||
                            label->fontMetrics().size(0, label->text()).width() <= label->width())
                    << label->text().toStdString();
        }
    }
}

TEST_F(ScriptListViewTest, aDoubleClickOnRemoveTakesOneScriptAndTheRestStillRun) {
    for (const char* name : {"a", "b", "c"})
        put(std::string(name) + ".zvscript", std::string("echo ") + name);
    show();
    click(card("a"), "Remove");
    click(card("b"), "Remove");
    EXPECT_EQ(titles(), (std::vector<std::string>{"b", "c"}));
    click(card("c"), "Run");
    EXPECT_EQ(scriptRunner.ran, std::vector<std::string>{"echo c"});
}

TEST_F(ScriptListViewTest, anEditOutOfSightKeepsWhatWasTyped) {
    for (int index = 10; index < 60; ++index)
        put(std::to_string(index) + ".zvscript", "");
    show();
    click(card("10"), "Edit");
    QTest::keyClicks(&textField(card("10")), "typed");
    QTest::keyClick(&view, Qt::Key_End);
    view.setFocus();
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() - 1);
    EXPECT_THROW(card("10"), std::runtime_error);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(textField(card("10")).toPlainText(), "typed");
    EXPECT_TRUE(button(card("10"), "Done").isVisible());
}

TEST_F(ScriptListViewTest, tabVisitsEveryCardInOrderAndBringsItIntoSight) {
    for (int index = 10; index < 30; ++index)
        put(std::to_string(index) + ".zvscript", "");
    show(200);
    view.setFocus();
    for (int index = 10; index < 30; ++index) {
        for (const char* text : {"Run", "Edit", "Remove"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const ScriptCard& reached = card(std::to_string(index));
            ASSERT_EQ(QApplication::focusWidget(), &button(reached, text)) << index << text;
            EXPECT_TRUE(view.viewport()->rect().contains(reached.geometry())) << index;
        }
    }
}

TEST_F(ScriptListViewTest, aNewScriptIsBroughtIntoSight) {
    show();
    createByHand("z");
    settle();
    for (int index = 10; index < 20; ++index) {
        createByHand("a" + std::to_string(index));
        settle();
        EXPECT_TRUE(view.viewport()->rect().contains(card("a" + std::to_string(index)).geometry()));
    }
}

} // namespace
} // namespace zarvil::qt
