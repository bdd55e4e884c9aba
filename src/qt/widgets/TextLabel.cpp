#include "qt/widgets/TextLabel.h"

#include "qt/widgets/SymbolWidget.h"
#include "qt/widgets/TextMeasure.h"
#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace zarvil::qt {

namespace {

constexpr int fewestCharacters = 8; // in an elided line
constexpr int chipSymbol = 16;

} // namespace

TextLabel::TextLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum, QSizePolicy::Label);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void TextLabel::setLook(Look look) {
    look_ = look;
    updateGeometry();
}

void TextLabel::setElided(bool elided) {
    if (elided_ == elided)
        return;
    elided_ = elided;
    updateGeometry();
    update();
}

void TextLabel::setOpacity(double opacity) {
    opacity_ = opacity;
    update();
}

QFont TextLabel::textFont() const {
    switch (look_) {
    case Title:
        return theme::scaled(font(), 1.3, QFont::Bold);
    case Heading:
        return theme::scaled(font(), 1, QFont::DemiBold);
    case Muted:
        return theme::scaled(font(), 0.92);
    case Body:
    case Quiet:
        break;
    }
    return font();
}

QColor TextLabel::textColor() const {
    if (!isEnabled())
        return palette().color(QPalette::Disabled, foregroundRole());
    return look_ == Muted || look_ == Quiet ? theme::mutedText(palette())
                                            : palette().color(foregroundRole());
}

int TextLabel::textFlags() const {
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    const int mnemonic = !buddy() ? 0 : underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), alignment());
    return static_cast<int>(visual) | mnemonic | (elided_ ? Qt::TextSingleLine : Qt::TextWordWrap);
}

int TextLabel::heightForWidth(int width) const {
    return textSize(*this, textFont(), textFlags(), text(), width).height();
}

QSize TextLabel::sizeHint() const {
    const QSize natural = textSize(*this, textFont(), buddy() ? Qt::TextShowMnemonic : 0, text());
    return {natural.width(), elided_ ? QFontMetrics(textFont()).height() : natural.height()};
}

QSize TextLabel::minimumSizeHint() const {
    const QFontMetrics metrics(textFont());
    return {std::min(sizeHint().width(), metrics.averageCharWidth() * fewestCharacters),
            metrics.height()};
}

void TextLabel::paintText(QPainter& painter, const QRect& place) const {
    painter.setOpacity(opacity_);
    painter.setFont(textFont());
    painter.setPen(textColor());
    const QString shown =
        elided_ ? painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width()) : text();
    painter.drawText(place, textFlags(), shown);
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintText(painter, contentsRect());
}

void TextLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
    QLabel::changeEvent(event);
}

VerdictChip::VerdictChip(QWidget* parent) : TextLabel(parent) {}

QMargins VerdictChip::padding() const {
    const int step = theme::unit(*this);
    QMargins room(2 * step + chipSymbol, step - 2, step + step / 2, step - 2);
    if (layoutDirection() == Qt::RightToLeft)
        room = {room.right(), room.top(), room.left(), room.bottom()};
    return room;
}

QSize VerdictChip::sizeHint() const { return TextLabel::sizeHint().grownBy(padding()); }

QSize VerdictChip::minimumSizeHint() const {
    return TextLabel::minimumSizeHint().grownBy(padding());
}

int VerdictChip::heightForWidth(int width) const {
    const QMargins room = padding();
    return TextLabel::heightForWidth(width - room.left() - room.right()) + room.top() +
           room.bottom();
}

QColor VerdictChip::textColor() const {
    return palette().color(QPalette::Active, foregroundRole());
}

void VerdictChip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::chipGround(parentWidget()->palette()));
    painter.drawRoundedRect(rect(), theme::chipRadius, theme::chipRadius);
    paintText(painter, rect().marginsRemoved(padding()));
}

void VerdictChip::resizeEvent(QResizeEvent* event) {
    TextLabel::resizeEvent(event);
    auto* symbol = findChild<SymbolWidget*>();
    if (!symbol)
        return;
    const QRect place(theme::unit(*this), (height() - chipSymbol) / 2, chipSymbol, chipSymbol);
    symbol->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

} // namespace zarvil::qt
