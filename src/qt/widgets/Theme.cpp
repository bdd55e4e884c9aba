#include "qt/widgets/Theme.h"

#include "qt/widgets/Contrast.h"
#include "qt/widgets/TextMeasure.h"

#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <array>

namespace zarvil::qt::theme {

namespace {

constexpr double legible = 4.5;
constexpr double discernible = 3;

QColor active(const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
}

} // namespace

int lineHeight(const QWidget& widget) { return widget.fontMetrics().height(); }

int unit(const QWidget& widget) { return std::max(6, qRound(0.44 * lineHeight(widget))); }

int charactersWide(const QWidget& widget, int characters) {
    return widget.fontMetrics().averageCharWidth() * characters;
}

int checkBoxIndent(const QWidget& widget) {
    const QStyle& style = *widget.style();
    return style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget) +
           style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &widget);
}

QSize buttonSize(const QPushButton& button) {
    const int step = unit(button);
    const QSize roomy(textSize(button, button.font(), Qt::TextShowMnemonic, button.text()).width() +
                          4 * step,
                      lineHeight(button) + step + 4);
    return button.sizeHint().expandedTo(roomy).expandedTo(button.minimumSize());
}

int widestColumn(const QWidget& widget) { return std::max(640, 36 * lineHeight(widget)); }

QFont scaled(QFont font, double factor, QFont::Weight weight) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qRound(font.pixelSize() * factor));
    if (weight != QFont::Normal)
        font.setWeight(weight);
    return font;
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto blend = [share](float from, float to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(blend(one.redF(), other.redF()), blend(one.greenF(), other.greenF()),
                            blend(one.blueF(), other.blueF()));
}

QColor cardGround(const QPalette& palette) {
    const QColor window = active(palette, QPalette::Window);
    const QColor base = active(palette, QPalette::Base);
    if (isHighContrast(palette))
        return window;
    if (base.lightnessF() >= window.lightnessF())
        return base;
    return mixed(window, active(palette, QPalette::WindowText), 0.06);
}

QColor outlineOn(const QPalette& palette, const QColor& ground) {
    return mixed(ground, active(palette, QPalette::WindowText),
                 isHighContrast(palette) ? 0.55 : 0.13);
}

QColor mutedText(const QPalette& palette) {
    const QColor text = active(palette, QPalette::WindowText);
    const QColor window = active(palette, QPalette::Window);
    if (isHighContrast(palette))
        return text;
    const QColor muted = mixed(text, window, 0.32);
    const bool isLegible = contrastRatio(muted, window) >= legible &&
                           contrastRatio(muted, cardGround(palette)) >= legible;
    return isLegible ? muted : text;
}

QColor fieldOutline(const QPalette& palette) {
    if (isHighContrast(palette))
        return outlineOn(palette, cardGround(palette));
    if (active(palette, QPalette::Window).lightnessF() >=
        active(palette, QPalette::WindowText).lightnessF())
        return {};
    constexpr double share = 0.45;
    return mixed(cardGround(palette), active(palette, QPalette::WindowText), share);
}

void paintFieldOutline(QPainter& painter, const QPalette& palette, const QRect& place) {
    const QColor outline = fieldOutline(palette);
    if (!outline.isValid())
        return;
    constexpr double radius = 3;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(place).adjusted(-0.5, -0.5, 0.5, 0.5), radius, radius);
    painter.restore();
}

void paintFieldOutlines(QPainter& painter, const QWidget& parent) {
    for (const auto* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool isField =
            qobject_cast<const QLineEdit*>(child) || qobject_cast<const QPlainTextEdit*>(child);
        const bool isOutlined = child->isEnabled() || isHighContrast(parent.palette());
        if (isField && child->isVisible() && isOutlined)
            paintFieldOutline(painter, parent.palette(), child->geometry());
    }
}

QPalette disabledTextFor(const QPalette& palette) {
    const std::array grounds{cardGround(palette), bannerGround(palette),
                             palette.color(QPalette::Active, QPalette::Window),
                             palette.color(QPalette::Disabled, QPalette::Base),
                             palette.color(QPalette::Disabled, QPalette::Button)};
    const auto isDiscernible = [&grounds](const QColor& color) {
        return std::ranges::all_of(grounds, [&color](const QColor& ground) {
            return contrastRatio(color, ground) >= discernible;
        });
    };
    QPalette missing;
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        // A placeholder is translucent unless a desktop says otherwise.
        const QColor raw = palette.color(QPalette::Disabled, role);
        const QColor given =
            mixed(palette.color(QPalette::Disabled, QPalette::Base), raw, raw.alphaF());
        const QColor goal =
            active(palette, role == QPalette::PlaceholderText ? QPalette::Text : role);
        constexpr double step = 0.05;
        double share = 0;
        while (share < 1 && !isDiscernible(mixed(given, goal, share)))
            share += step;
        if (share > 0)
            missing.setColor(QPalette::Disabled, role, mixed(given, goal, std::min(share, 1.0)));
    }
    return missing;
}

QColor bannerGround(const QPalette& palette) {
    const QColor window = active(palette, QPalette::Window);
    return isHighContrast(palette) ? window
                                   : mixed(window, active(palette, QPalette::Highlight), 0.14);
}

QColor bannerOutline(const QPalette& palette) {
    return isHighContrast(palette) ? active(palette, QPalette::WindowText)
                                   : mixed(active(palette, QPalette::Window),
                                           active(palette, QPalette::Highlight), 0.5);
}

QColor shield(const QPalette& palette) {
    const QColor highlight = active(palette, QPalette::Highlight);
    return contrastRatio(highlight, active(palette, QPalette::Window)) >= discernible
               ? highlight
               : active(palette, QPalette::Link);
}

QColor inkOn(const QColor& ground) {
    return contrastRatio(Qt::white, ground) >= contrastRatio(Qt::black, ground) ? Qt::white
                                                                                : Qt::black;
}

QColor chipGround(const QPalette& palette) {
    const std::array grounds{active(palette, QPalette::Window), active(palette, QPalette::Base),
                             active(palette, QPalette::WindowText)};
    const QColor darkest = *std::ranges::min_element(
        grounds, {}, [](const QColor& color) { return color.lightnessF(); });
    return mixed(darkest, Qt::black, 0.5);
}

} // namespace zarvil::qt::theme
