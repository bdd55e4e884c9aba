#include "LayoutHarness.h"
#include "qt/adapters/QtStringTable.h"
#include "qt/widgets/Form.h"
#include "qt/widgets/TextLabel.h"

#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTranslator>

namespace zarvil::qt {
namespace {

/// The texts in a language, in force before anything shows one.
class Spoken : public testing::WithParamInterface<const char*> {
protected:
    Spoken() {
        const QString file = QStringLiteral("zarvil_") + GetParam();
        if (!translator_.load(file, ZARVIL_QM_FOLDER))
            throw std::runtime_error(std::string("no language ") + GetParam());
        QCoreApplication::installTranslator(&translator_);
        fake::StringTable::inherited = &table_;
    }
    ~Spoken() { fake::StringTable::inherited = nullptr; }

private:
    QTranslator translator_;
    QtStringTable table_;
};

class LayoutIn : public Spoken, public Layout {};
INSTANTIATE_TEST_SUITE_P(Languages, LayoutIn,
                         testing::Values("en", "de", "es", "fr", "uk", "ar", "pseudo"),
                         [](const auto& language) { return std::string(language.param); });

/// What of the shown widgets does not fit: text that needs more room than it has, a child that
/// leaves its parent, neighbours that overlap, and a row with an empty space of its own.
QStringList misfits(const QWidget& top) {
    QStringList found;
    for (const auto* row : top.findChildren<Row*>())
        if (row->isVisible() && row->height() != row->heightForWidth(row->width()))
            found += row->objectName() + " is not as high as what it holds";
    for (const auto* widget : top.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const TextLabel*>(widget);
        const bool isPart = label || qobject_cast<const QAbstractButton*>(widget) ||
                            qobject_cast<const QLineEdit*>(widget);
        // A tab bar that is too narrow scrolls.
        if (!isPart || !widget->isVisible() || qobject_cast<QTabBar*>(widget->parentWidget()))
            continue;
        const QString name = widget->parentWidget()->objectName() + '/' + widget->objectName();
        if (label && !label->isElided() && label->heightForWidth(label->width()) > label->height())
            found += name + " is clipped";
        if (qobject_cast<const QPushButton*>(widget) &&
            widget->width() < widget->sizeHint().width())
            found += name + " is too narrow";
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            found += name + " leaves its parent";
        for (const auto* other :
             widget->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (other != widget && other->isVisible() &&
                other->geometry().intersects(widget->geometry()))
                found += name + " overlaps " + other->objectName();
    }
    return found;
}

TEST_P(LayoutIn, givesNoMnemonicTwiceOnOnePage) {
    auto& tabs = widget<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count(); ++page) {
        QStringList letters;
        const auto add = [&](const QString& text) {
            letters += QKeySequence::mnemonic(text).toString();
        };
        for (int tab = 0; tab < tabs.count(); ++tab)
            add(tabs.tabText(tab));
        add(widget<QPushButton>("launchButton").text());
        // Underlined letters would tear the Arabic titles of the tabs apart.
        const int unmarked = std::string_view(GetParam()) == "ar" ? 5 : 0;
        EXPECT_EQ(letters.count(QString()), unmarked);
        add(widget<QLabel>("onDesc").text()); // not every language has a letter left for it
        for (const auto* button : tabs.widget(page)->findChildren<QAbstractButton*>())
            add(button->text());
        for (const auto* label : tabs.widget(page)->findChildren<QLabel*>())
            if (label->buddy())
                add(label->text());
        letters.removeAll(QString());
        EXPECT_FALSE(letters.isEmpty());
        EXPECT_EQ(letters.removeDuplicates(), 0)
            << (letters.join(QChar(0x20)) + " on " + tabs.tabText(page)).toStdString();
    }
}

TEST_P(LayoutIn, clipsAndOverlapsNothing) {
    struct Case {
        double points;
        QSize size;
        Qt::LayoutDirection direction;
    };
    const QFont before = QApplication::font();
    loadWithAgent({{"UsePushover", true}, {"PushUserId", "u"}});
    const Message invalid(message::pushValidationFinished, Dictionary{{"code", 1}});
    agentSends(invalid);
    for (const bool present : {true, false}) {
        if (!present)
            pane.appDidNotAnswer();
        for (const Case& c : std::vector<Case>{{10, {480, 400}, Qt::LeftToRight},
                                               {10, {680, 640}, Qt::RightToLeft},
                                               {10, {1600, 900}, Qt::LeftToRight},
                                               {18, {640, 420}, Qt::RightToLeft},
                                               {18, {1024, 600}, Qt::LeftToRight}}) {
            QFont font = before;
            font.setPointSizeF(c.points);
            QApplication::setFont(font);
            view.setLayoutDirection(c.direction);
            view.resize(c.size);
            view.show();
            EXPECT_EQ(view.size(), c.size) << c.points << " pt";
            EXPECT_LE(widget<QWidget>("chooseDevices").sizeHint().height(),
                      widget<QWidget>("statusLine").sizeHint().height());
            const auto& heading = widget<QWidget>("ConnectedCaptionRow");
            const QRect& list = widget<QWidget>("connectedDevices").geometry();
            EXPECT_TRUE(QTest::qWaitFor([&] {
                return !heading.isVisible() || list.top() - heading.geometry().bottom() < 20;
            }));
            for (int page = 0; page < 5; ++page) {
                widget<QTabWidget>("tabView").setCurrentIndex(page);
                static_cast<void>(QTest::qWaitFor([this] { return misfits(view).isEmpty(); }));
                EXPECT_EQ(misfits(view).join("; ").toStdString(), "")
                    << c.points << " pt, " << c.size.width() << " wide, page " << page;
                const QRect columns = widget<QWidget>("DeviceColumns").geometry();
                EXPECT_TRUE(present || page > 0 ||
                            widget<QWidget>("devicesUnknown").geometry() == columns);
            }
        }
    }
    QApplication::setFont(before);
}

} // namespace
} // namespace zarvil::qt
