#include "host/Appearance.h"
#include "Bundles.h"
#include "FakeServices.h"
#include "PrivateBus.h"
#include "host/ContrastStyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <cmath>
#include <optional>
#include <tuple>

namespace zarvil::host {
namespace {

class AppearanceTest : public Bundles {
protected:
    ~AppearanceTest() override { QApplication::setPalette(desktop); }

    bool becomes(const Appearance& appearance, Look look) const {
        return QTest::qWaitFor([&] { return appearance.look() == look; });
    }

    posix::SettingsFile settings{path("host.ini").toStdString(), [] {}};
    QPalette desktop = QApplication::palette();
};

TEST_F(AppearanceTest, followsThePortalAndRemembersItForTheNextStart) {
    PrivateBus bus;
    fake::Portal portal(bus.connect("portal"));
    portal.values = {{"color-scheme", 1U}, {"contrast", 1U}};
    BusConnection session(bus.options());
    Appearance appearance(AppearanceChoice::Auto, settings);
    EXPECT_FALSE(isDark(QApplication::palette()));
    appearance.follow(session);
    ASSERT_TRUE(becomes(appearance, {true, true}));
    EXPECT_EQ(QApplication::palette(), paletteFor({true, true}));
    EXPECT_EQ(Appearance(AppearanceChoice::Auto, settings).look(), (Look{true, true}));
    portal.announce("org.gnome.desktop", "color-scheme", 2);
    portal.change("accent-color", 2);
    portal.change("contrast", 0);
    ASSERT_TRUE(becomes(appearance, {true, false}));
    portal.change("color-scheme", 2);
    ASSERT_TRUE(becomes(appearance, {false, false}));
    EXPECT_FALSE(isDark(QApplication::palette()));
}

TEST_F(AppearanceTest, nothingMovesWhereTheUserWantsLessMotionByEitherKey) {
    const auto moves = [] { return QApplication::isEffectEnabled(Qt::UI_General); };
    for (const auto& [key, still, moving] :
         {std::tuple("reduced-motion", 1U, 0U), std::tuple("enable-animations", 0U, 1U)}) {
        QFile::remove(path("host.ini"));
        posix::SettingsFile fresh(path("host.ini").toStdString(), [] {});
        PrivateBus bus;
        fake::Portal portal(bus.connect("portal"));
        portal.values = {{"reduced-motion", 0U}, {"enable-animations", true}};
        portal.values[key] = still;
        BusConnection session(bus.options());
        Appearance appearance(AppearanceChoice::Auto, fresh);
        EXPECT_TRUE(moves());
        appearance.follow(session);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !moves(); })) << key;
        portal.values[key] = moving;
        portal.announce("org.gnome.desktop.interface", key, moving);
        portal.announce("org.freedesktop.appearance", key, moving);
        EXPECT_TRUE(QTest::qWaitFor(moves)) << key;
    }
}

TEST_F(AppearanceTest, withoutAPortalsValuesTheDesktopsPaletteDecides) {
    for (const bool strange : {false, true}) {
        // Of a start with a portal that knew them.
        settings.setValue("appearance", "scheme", "1");
        QApplication::setPalette(paletteFor({false, false}));
        PrivateBus bus;
        std::optional<fake::Portal> portal;
        if (strange)
            portal.emplace(bus.connect("portal")).strange = true;
        BusConnection session(bus.options());
        Appearance appearance(AppearanceChoice::Auto, settings);
        EXPECT_TRUE(appearance.look().dark);
        appearance.follow(session);
        ASSERT_TRUE(becomes(appearance, {false, false})) << strange;
        QApplication::setPalette(paletteFor({true, false}));
        EXPECT_TRUE(Appearance(AppearanceChoice::Auto, settings).look().dark);
    }
}

TEST_F(AppearanceTest, aForcedSchemeStaysWhateverThePortalSays) {
    PrivateBus bus;
    fake::Portal portal(bus.connect("portal"));
    portal.values = {{"color-scheme", 2U}, {"contrast", 1U}};
    BusConnection session(bus.options());
    Appearance appearance(AppearanceChoice::Dark, settings);
    EXPECT_TRUE(isDark(QApplication::palette()));
    appearance.follow(session);
    ASSERT_TRUE(becomes(appearance, {true, true}));
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& first, const QColor& second) {
    const double lighter = std::max(luminance(first), luminance(second));
    const double darker = std::min(luminance(first), luminance(second));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST_F(AppearanceTest, everyTextOfAPaletteIsReadable) {
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Link, QPalette::Window},
        {QPalette::Link, QPalette::Base},
        {QPalette::LinkVisited, QPalette::Window}};
    for (const bool dark : {false, true})
        for (const bool highContrast : {false, true}) {
            const QPalette palette = paletteFor({dark, highContrast});
            EXPECT_EQ(isDark(palette), dark);
            for (const auto group : {QPalette::Active, QPalette::Inactive})
                for (const auto& [text, ground] : pairs)
                    EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)),
                              highContrast ? 7.0 : 4.5)
                        << dark << highContrast << text << " on " << ground;
            // Greyed texts need not reach that, but must be seen.
            for (const auto& [text, ground] : pairs)
                EXPECT_GE(contrast(palette.color(QPalette::Disabled, text),
                                   palette.color(QPalette::Disabled, ground)),
                          highContrast ? 4.5 : 2.0)
                    << dark << highContrast << text << " on " << ground;
        }
}

TEST_F(AppearanceTest, textsOnATabsPageAreReadable) {
    const QString style = QApplication::style()->name();
    QApplication::setStyle("fusion");
    for (const bool dark : {false, true})
        for (const bool highContrast : {false, true}) {
            const QPalette palette = paletteFor({dark, highContrast});
            QApplication::setPalette(palette);
            QTabWidget tabs;
            tabs.addTab(new QWidget, "Tab");
            tabs.resize(200, 200);
            // Fusion makes the page's ground lighter than any role of the palette.
            const QColor ground = tabs.grab().toImage().pixelColor(100, 120);
            for (const auto text : {QPalette::WindowText, QPalette::Link, QPalette::LinkVisited})
                EXPECT_GE(contrast(palette.color(text), ground), highContrast ? 7.0 : 4.5)
                    << dark << highContrast << text << ground.name().toStdString();
        }
    QApplication::setStyle(style);
}

TEST_F(AppearanceTest, buttonsAndBoxesStandOutFromAWindowOfHighContrast) {
    ContrastStyle style;
    for (const bool dark : {false, true}) {
        QPushButton button("Button");
        QCheckBox greyed("Box");
        greyed.setEnabled(false);
        for (QWidget* control : std::initializer_list<QWidget*>{&button, &greyed}) {
            control->setStyle(&style);
            control->setPalette(paletteFor({dark, true}));
            const QImage shown = control->grab().toImage();
            EXPECT_GE(contrast(shown.pixelColor(0, shown.height() / 2),
                               control->palette().color(QPalette::Window)),
                      4.5);
        }
    }
}

} // namespace
} // namespace zarvil::host
