#include "host/Palettes.h"

namespace zarvil::host {

namespace {

/// The colors that the roles derive from.
struct Colors {
    QRgb window;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb text;
    QRgb dimmedText;
    QRgb placeholder;
    QRgb highlight;
    QRgb highlightedText;
    QRgb dimmedHighlight;
    QRgb link;
    QRgb visitedLink;
    QRgb toolTip;
    QRgb light;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
};

constexpr Colors lightColors{0xffefefef, 0xffffffff, 0xfff6f6f6, 0xffefefef, 0xff1b1b1b, 0xff8a8a8a,
                             0xff707070, 0xff2a6fc0, 0xffffffff, 0xffa9a9a9, 0xff1a5fb4, 0xff7a3d99,
                             0xffffffdc, 0xffffffff, 0xffb8b8b8, 0xff9f9f9f, 0xff767676};

constexpr Colors darkColors{0xff2d2d2d, 0xff1f1f1f, 0xff272727, 0xff3a3a3a, 0xffececec, 0xff858585,
                            0xff9a9a9a, 0xff2f74c8, 0xffffffff, 0xff4f4f4f, 0xff8cc4ff, 0xffc9a0e6,
                            0xff3c3c3c, 0xff585858, 0xff474747, 0xff1a1a1a, 0xff0c0c0c};

constexpr Colors lightContrast{0xffffffff, 0xffffffff, 0xfff0f0f0, 0xffffffff, 0xff000000,
                               0xff4d4d4d, 0xff404040, 0xff002f80, 0xffffffff, 0xff5c5c5c,
                               0xff0000c8, 0xff5b0080, 0xffffffff, 0xffffffff, 0xff606060,
                               0xff303030, 0xff000000};

// Fusion derives outlines from the window and cannot make them lighter than black, so the controls
// stand out by their own ground.
constexpr Colors darkContrast{0xff000000, 0xff1c1c1c, 0xff282828, 0xff3a3a3a, 0xffffffff,
                              0xffdadada, 0xffe6e6e6, 0xffffd800, 0xff000000, 0xff8c8c8c,
                              0xffd8ecff, 0xfff0dcff, 0xff000000, 0xffffffff, 0xffb0b0b0,
                              0xff909090, 0xff606060};

constexpr const Colors& colorsOf(const Look& look) {
    if (look.highContrast)
        return look.dark ? darkContrast : lightContrast;
    return look.dark ? darkColors : lightColors;
}

void setEverywhere(QPalette& palette, const Colors& colors) {
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {
        {QPalette::Window, colors.window},
        {QPalette::WindowText, colors.text},
        {QPalette::Base, colors.base},
        {QPalette::AlternateBase, colors.alternateBase},
        {QPalette::Text, colors.text},
        {QPalette::PlaceholderText, colors.placeholder},
        {QPalette::Button, colors.button},
        {QPalette::ButtonText, colors.text},
        {QPalette::BrightText, colors.highlightedText},
        {QPalette::ToolTipBase, colors.toolTip},
        {QPalette::ToolTipText, colors.text},
        {QPalette::Highlight, colors.highlight},
        {QPalette::HighlightedText, colors.highlightedText},
        {QPalette::Link, colors.link},
        {QPalette::LinkVisited, colors.visitedLink},
        {QPalette::Light, colors.light},
        {QPalette::Midlight, colors.button},
        {QPalette::Mid, colors.mid},
        {QPalette::Dark, colors.dark},
        {QPalette::Shadow, colors.shadow},
    };
    for (const auto& [role, color] : roles)
        palette.setColor(QPalette::All, role, QColor(color));
}

} // namespace

QPalette paletteFor(const Look& look) {
    const Colors& colors = colorsOf(look);
    QPalette palette;
    setEverywhere(palette, colors);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited})
        palette.setColor(QPalette::Disabled, role, QColor(colors.dimmedText));
    // A greyed box must not vanish into a window of its own color.
    palette.setColor(QPalette::Disabled, QPalette::Base,
                     QColor(look.highContrast ? colors.button : colors.window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.dimmedHighlight));
    return palette;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

} // namespace zarvil::host
