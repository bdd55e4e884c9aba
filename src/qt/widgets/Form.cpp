#include "qt/widgets/Form.h"

#include "qt/widgets/Accessibility.h"
#include "qt/widgets/TextLabel.h"
#include "qt/widgets/TextMeasure.h"
#include "qt/widgets/Theme.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int columnsFrom = 70; // characters of width
constexpr int columnGap = 20;

/// Whether an event of a widget that arranges its children asks for it anew.
bool asksForArrangement(const QEvent& event) {
    return event.type() == QEvent::LayoutRequest || event.type() == QEvent::LayoutDirectionChange ||
           event.type() == QEvent::StyleChange || event.type() == QEvent::FontChange;
}

} // namespace

// Column

Column::Column(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void Column::setVerticalMargins(int top, int bottom) {
    top_ = top;
    bottom_ = bottom;
    // The sides follow the font and the width, once the column is given one.
    if (layout())
        layout()->setContentsMargins(theme::sideMargin, top, theme::sideMargin, bottom);
}

int Column::columnWidth(int span) const {
    return std::min(span - 2 * theme::sideMargin, theme::widestColumn(*this));
}

int Column::span() const {
    const QWidget* viewport = parentWidget();
    const auto* page = viewport ? qobject_cast<const Page*>(viewport->parentWidget()) : nullptr;
    return page ? page->width() : width();
}

// A scroll bar stands in the margin, so that the column's edges stay where they are without it.
QMargins Column::sides() const {
    const int offset = columnOffset(span());
    const int other = std::max(0, width() - offset - columnWidth(span()));
    return layoutDirection() == Qt::RightToLeft ? QMargins(other, top_, offset, bottom_)
                                                : QMargins(offset, top_, other, bottom_);
}

void Column::adoptMargins() {
    if (layout() && layout()->contentsMargins() != sides())
        layout()->setContentsMargins(sides());
}

QSize Column::minimumSizeHint() const {
    if (!layout())
        return {};
    const QMargins margins = layout()->contentsMargins();
    const QSize least = layout()->totalMinimumSize();
    return {least.width() - margins.left() - margins.right() + 2 * theme::sideMargin,
            least.height()};
}

QSize Column::sizeHint() const {
    if (!layout())
        return {};
    const int width = theme::widestColumn(*this) + 2 * theme::sideMargin;
    return {width, heightForWidth(width)};
}

bool Column::hasHeightForWidth() const { return layout() && layout()->hasHeightForWidth(); }

int Column::heightForWidth(int width) const {
    if (!layout())
        return -1;
    const QWidget* viewport = parentWidget();
    const bool inPage = viewport && qobject_cast<const Page*>(viewport->parentWidget());
    if (!layout()->hasHeightForWidth())
        return layout()->totalMinimumSize().height();
    const QMargins margins = layout()->contentsMargins();
    return layout()->totalMinimumHeightForWidth(columnWidth(inPage ? span() : width) +
                                                margins.left() + margins.right());
}

bool Column::event(QEvent* event) {
    if (asksForArrangement(*event))
        adoptMargins();
    return QWidget::event(event);
}

void Column::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    adoptMargins();
}

// Page

Page::Page(QWidget* parent) : QScrollArea(parent), column_(new Column) {
    constexpr int above = 16;
    constexpr int below = 20;
    column_->setVerticalMargins(above, below);
    setWidget(column_);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    column_->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { showFocused(now); });
}

// The content decides nothing here, for it scrolls; and that of a hidden page need not be measured.
QSize Page::sizeHint() const {
    constexpr QSize lines(36, 24);
    return lines * theme::lineHeight(*this);
}

void Page::setVisible(bool visible) {
    if (visible)
        fill();
    QScrollArea::setVisible(visible);
}

void Page::fill() {
    if (const Filling filling = std::exchange(filling_, nullptr))
        filling(*column_);
}

void Page::showFocused(QWidget* focused) {
    if (!focused || focused == column_ || !column_->isAncestorOf(focused))
        return;
    // With the row that explains it, as far as both fit.
    QWidget* shown = focused;
    if (auto* row = qobject_cast<Row*>(focused->parentWidget()); row && row->height() < height())
        shown = row;
    ensureWidgetVisible(shown, 0, theme::unit(*this));
}

void Page::resizeEvent(QResizeEvent* event) {
    column_->updateGeometry();
    QScrollArea::resizeEvent(event);
}

// Card

Card::Card(QWidget* parent) : QFrame(parent) { installAccessibility(); }

void Card::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = theme::cardGround(palette());
    const QColor outline = theme::outlineOn(palette(), ground);
    painter.setPen(outline);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::cardRadius,
                            theme::cardRadius);
    const int inset = theme::unit(*this) * 7 / 4;
    bool first = true;
    for (const QObject* object : children()) {
        const auto* row = qobject_cast<const Row*>(object);
        if (!row || row->isHidden())
            continue;
        if (!first && row->kind() == Row::CardRow)
            painter.fillRect(QRect(inset, row->y(), width() - 2 * inset, 1), outline);
        first = false;
    }
}

// Columns

Columns::Columns(QWidget* parent) : QWidget(parent) {}

void Columns::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    auto* box = qobject_cast<QBoxLayout*>(layout());
    if (!box)
        return;
    const bool narrow = width() < theme::charactersWide(*this, columnsFrom);
    box->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    box->setSpacing(columnGap);
}

// CheckBox

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int CheckBox::textFlags() const {
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    return static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
           Qt::AlignVCenter | Qt::TextWordWrap |
           (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

QRect CheckBox::textPlace(int width) const {
    const int indent = theme::checkBoxIndent(*this);
    const int room = std::max(1, width - indent);
    const QSize size = textSize(*this, font(), textFlags() & ~Qt::AlignVCenter, text(), room);
    return {indent, 0, room, size.height()};
}

int CheckBox::heightForWidth(int width) const {
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(textPlace(width).height(), indicator) + 2 * theme::textGap;
}

QSize CheckBox::minimumSizeHint() const {
    const int width = theme::charactersWide(*this, theme::fewestCharacters);
    return {std::min(sizeHint().width(), theme::checkBoxIndent(*this) + width),
            std::max(theme::lineHeight(*this), 1)};
}

bool CheckBox::hitButton(const QPoint& position) const {
    const int text = textSize(*this, font(), Qt::TextShowMnemonic, this->text()).width();
    const QRect target(0, 0, std::min(width(), theme::checkBoxIndent(*this) + text), height());
    return QStyle::visualRect(layoutDirection(), rect(), target).contains(position);
}

/// As the style draws it, the text apart: that it would draw in one line.
void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.rect = rect();
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    option.state.setFlag(QStyle::State_HasFocus, false);
    style()->drawControl(QStyle::CE_CheckBox, &option, &painter, this);
    if (isEnabled())
        theme::paintFieldOutline(painter, palette(),
                                 style()
                                     ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this)
                                     .adjusted(1, 1, -1, -1));
    QRect place = textPlace(width());
    place.setHeight(height());
    place = QStyle::visualRect(layoutDirection(), rect(), place);
    style()->drawItemText(&painter, place, textFlags(), palette(), isEnabled(), text(),
                          foregroundRole());
    if (!focused)
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    const QRect exact = fontMetrics().boundingRect(place, textFlags(), text());
    focus.rect = exact.adjusted(-2, -1, 2, 1).intersected(rect());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace zarvil::qt
