#include "qt/widgets/Form.h"

#include "qt/widgets/Accessibility.h"
#include "qt/widgets/TextLabel.h"
#include "qt/widgets/Theme.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int fewestCharacters = 16; // beside controls
constexpr int columnsFrom = 70;      // characters of width
constexpr int columnGap = 20;
constexpr int textGap = 2;
constexpr int sectionAbove = 22;
constexpr int sectionBelow = 8;
constexpr int pictureGap = 14;
constexpr int bannerPictureShift = 6;

/// Whether the child takes room: it is shown, or its room is kept.
bool takesRoom(const QWidget& child) {
    return !child.isWindow() && (!child.isHidden() || child.sizePolicy().retainSizeWhenHidden());
}

template <typename Callback>
void forEachChild(const QWidget& parent, Callback&& callback) {
    for (QObject* object : parent.children())
        if (auto* child = qobject_cast<QWidget*>(object); child && takesRoom(*child))
            callback(child);
}

/// What a child would like, by the rules that hold on all pages.
QSize wishOf(const QWidget& child) {
    if (const auto* button = qobject_cast<const QPushButton*>(&child))
        return theme::buttonSize(*button);
    QSize wish = child.sizeHint().expandedTo(child.minimumSizeHint());
    if (const int digits = child.property("digits").toInt(); digits > 0)
        wish.setWidth(child.minimumSizeHint().width() +
                      digits * child.fontMetrics().horizontalAdvance(u'0'));
    return wish.expandedTo(child.minimumSize()).boundedTo(child.maximumSize());
}

int heightOf(const QWidget& child, int width) {
    return child.hasHeightForWidth() ? child.heightForWidth(width) : wishOf(child).height();
}

/// Around a field or a box that stands in `place`.
void paintFieldOutline(QPainter& painter, const QPalette& palette, const QRect& place) {
    const QColor outline = theme::fieldOutline(palette);
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
    adoptMargins();
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

// Arranger

class Arranger::Layout final : public QLayout {
public:
    explicit Layout(Arranger& arranger) : QLayout(&arranger), arranger_(arranger) {
        setContentsMargins(0, 0, 0, 0);
        // The widget says itself how small it may become.
        setSizeConstraint(QLayout::SetNoConstraint);
    }

    [[nodiscard]] QSize sizeHint() const override { return arranger_.sizeHint(); }
    [[nodiscard]] QSize minimumSize() const override { return arranger_.minimumSizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override {
        return arranger_.heightForWidth(width);
    }
    void setGeometry(const QRect& place) override {
        QLayout::setGeometry(place);
        arranger_.arrangeChildren();
    }

    // It holds no items: the children are the arranger's own affair.
    void addItem(QLayoutItem* item) override { delete item; }
    [[nodiscard]] int count() const override { return 0; }
    [[nodiscard]] QLayoutItem* itemAt(int /*index*/) const override { return nullptr; }
    QLayoutItem* takeAt(int /*index*/) override { return nullptr; }

private:
    Arranger& arranger_;
};

Arranger::Arranger(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    new Layout(*this);
}

// Row

Row::Row(QWidget* parent) : Arranger(parent) {}

void Row::setKind(Kind kind) {
    kind_ = kind;
    layout()->invalidate();
}

void Row::setStartWidth(int width) {
    startWidth_ = width;
    layout()->invalidate();
}

void Row::setFollows(const QString& name) { follows_ = name; }

Row::Parts Row::parts() const {
    Parts found;
    forEachChild(*this, [&found](QWidget* child) {
        const QString place = child->property("place").toString();
        auto& group = place == QLatin1String("start")   ? found.start
                      : place == QLatin1String("label") ? found.label
                      : place == QLatin1String("end")   ? found.end
                                                        : found.text;
        group.push_back(child);
    });
    return found;
}

QMargins Row::padding() const {
    const int step = theme::unit(*this);
    const int side = step * 7 / 4;
    switch (kind_) {
    case CardRow:
        return {side, step, side, step};
    case DependentRow:
        return {side + theme::checkBoxIndent(*this), step, side, step};
    case SectionRow: {
        const QLayout* layout = parentWidget() ? parentWidget()->layout() : nullptr;
        const bool isFirst = layout && layout->count() > 0 && layout->itemAt(0)->widget() == this;
        return {0, isFirst ? 0 : sectionAbove, 0, sectionBelow};
    }
    case BareRow:
        break;
    }
    return {};
}

int Row::startSpace(const Parts& parts) const {
    if (startWidth_ > 0)
        return startWidth_ + pictureGap;
    int width = 0;
    for (const QWidget* picture : parts.start)
        width += wishOf(*picture).width() + 2 * theme::unit(*this);
    return width;
}

/// As wide in all rows of the page, so that the fields stand under each other.
int Row::labelWidth() const {
    const QWidget* page = this;
    while (page->parentWidget() && !qobject_cast<const Column*>(page))
        page = page->parentWidget();
    int widest = 0;
    for (const QWidget* label : page->findChildren<TextLabel*>())
        if (label->property("place").toString() == QLatin1String("label"))
            widest = std::max(widest, label->sizeHint().width());
    return widest;
}

int Row::arrange(int width, std::vector<Place>& places) const {
    const Parts group = parts();
    const QMargins pad = padding();
    const int step = theme::unit(*this);
    const int fewest = theme::charactersWide(*this, fewestCharacters);
    const int left = pad.left() + startSpace(group);
    const int room = std::max(0, width - left - pad.right());
    int endWidth = 0;
    int endHeight = 0;
    for (const QWidget* control : group.end) {
        endWidth += wishOf(*control).width() + (endWidth > 0 ? step : 0);
        endHeight = std::max(endHeight, wishOf(*control).height());
    }
    int label = group.label.empty() ? 0 : labelWidth() + 2 * step;
    const bool labelAbove = label > 0 && room - label < fewest;
    const bool endBelow =
        endWidth > 0 && !group.text.empty() && room - label - endWidth - 2 * step < fewest;
    const int besides = endWidth > 0 && !endBelow ? endWidth + 2 * step : 0;
    int y = pad.top();
    if (labelAbove) {
        for (QWidget* widget : group.label) {
            const int height = heightOf(*widget, room);
            places.push_back({widget, QRect(left, y, room, height)});
            y += height + textGap;
        }
        label = 0;
    }
    const int textLeft = left + label;
    const int textWidth = std::max(0, room - label - besides);
    const std::size_t firstText = places.size();
    int textHeight = 0;
    int indent = 0;
    for (QWidget* widget : group.text) {
        if (textHeight > 0)
            textHeight += textGap;
        const int inset = qobject_cast<QLabel*>(widget) ? indent : 0;
        const int height = heightOf(*widget, textWidth - inset);
        places.push_back(
            {widget, QRect(textLeft + inset, y + textHeight, textWidth - inset, height)});
        textHeight += height;
        if (qobject_cast<QCheckBox*>(widget))
            indent = theme::checkBoxIndent(*this);
    }
    const int firstHeight = group.text.empty() ? 0 : places[firstText].rect.height();
    int bodyHeight = textHeight;
    if (!endBelow)
        bodyHeight = std::max(bodyHeight, endHeight);
    for (const QWidget* picture : group.start)
        bodyHeight = std::max(bodyHeight, wishOf(*picture).height());
    for (std::size_t index = firstText; index < places.size(); ++index)
        places[index].rect.translate(0, (bodyHeight - textHeight) / 2);
    if (!labelAbove) {
        for (QWidget* widget : group.label) {
            const int height = heightOf(*widget, label);
            places.push_back({widget, QRect(left, y + (firstHeight - height) / 2, label, height)});
        }
    }
    int x = pictureInset();
    for (QWidget* picture : group.start) {
        const QSize size = wishOf(*picture);
        // Pictures of several rows share their centre, whatever their size.
        const int slot = startWidth_ > 0 ? startWidth_ : size.width();
        places.push_back({picture, QRect(QPoint(x + (slot - size.width()) / 2,
                                                y + (bodyHeight - size.height()) / 2),
                                         size)});
        if (startWidth_ == 0)
            x += size.width() + 2 * step;
    }
    y += bodyHeight;
    int endX = endBelow ? textLeft : width - pad.right() - endWidth;
    int endTop = y - bodyHeight;
    if (endBelow) {
        endTop = y + step;
        y = endTop + endHeight;
        bodyHeight = endHeight;
    }
    for (QWidget* control : group.end) {
        const QSize size = wishOf(*control);
        places.push_back(
            {control, QRect(QPoint(endX, endTop + (bodyHeight - size.height()) / 2), size)});
        endX += size.width() + step;
    }
    return y + pad.bottom();
}

void Row::arrangeChildren() {
    std::vector<Place> places;
    arrange(width(), places);
    for (const Place& place : places)
        place.widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place.rect));
}

int Row::heightForWidth(int width) const {
    std::vector<Place> places;
    return arrange(width, places);
}

QSize Row::minimumSizeHint() const {
    const Parts group = parts();
    const QMargins pad = padding();
    int controls = 0;
    for (const QWidget* control : group.end)
        controls += wishOf(*control).width() + theme::unit(*this);
    int text = 0;
    for (const QWidget* widget : group.text)
        text = std::max(text, widget->minimumSizeHint().width());
    const int least = std::min(text, theme::charactersWide(*this, fewestCharacters));
    const int width = pad.left() + startSpace(group) + std::max({controls, least}) + pad.right();
    return {width, heightForWidth(sizeHint().width())};
}

QSize Row::sizeHint() const {
    const int width = theme::widestColumn(*this);
    return {width, heightForWidth(width)};
}

QWidget* Row::followed() const {
    return follows_.isEmpty() ? findChild<QCheckBox*>(QString(), Qt::FindDirectChildrenOnly)
                              : findChild<QWidget*>(follows_);
}

/// Labels with a model of their own are greyed by that.
void Row::greyLabels() {
    const QWidget* leader = followed();
    if (!leader)
        return;
    for (auto* label : findChildren<TextLabel*>(QString(), Qt::FindDirectChildrenOnly))
        if (label->objectName().isEmpty() || label->objectName().front().isUpper())
            label->setEnabled(leader->isEnabledTo(this));
}

bool Row::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::EnabledChange && watched == followed())
        greyLabels();
    return Arranger::eventFilter(watched, event);
}

void Row::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    for (const auto* field : findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly))
        if (field->isVisible() && field->isEnabled())
            paintFieldOutline(painter, palette(), field->geometry());
}

bool Row::event(QEvent* event) {
    if (event->type() == QEvent::ChildAdded)
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    if (event->type() == QEvent::Polish)
        greyLabels();
    return Arranger::event(event);
}

// BannerRow

BannerRow::BannerRow(QWidget* parent) : Row(parent) { setKind(BareRow); }

void BannerRow::setProminent(bool prominent) {
    if (prominent_ == prominent)
        return;
    prominent_ = prominent;
    if (auto* button = findChild<QPushButton*>())
        button->setDefault(prominent);
    layout()->invalidate();
    update();
    Q_EMIT prominentChanged(prominent);
}

QMargins BannerRow::padding() const {
    if (!prominent_)
        return {};
    const int step = theme::unit(*this);
    return {0, step, step + textGap, step};
}

int BannerRow::pictureInset() const { return prominent_ ? bannerPictureShift : 0; }

void BannerRow::paintEvent(QPaintEvent* /*event*/) {
    if (!prominent_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::bannerOutline(palette()));
    painter.setBrush(theme::bannerGround(palette()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::cardRadius,
                            theme::cardRadius);
}

// Flow

Flow::Flow(QWidget* parent) : Arranger(parent) {}

int Flow::arrange(int width, bool apply) const {
    const int gap = property("gap").isValid() ? property("gap").toInt() : theme::unit(*this);
    struct Item {
        QWidget* widget;
        QRect rect;
    };
    std::vector<Item> line;
    int x = 0;
    int y = 0;
    int height = 0;
    const auto endLine = [&] {
        for (Item& item : line) {
            item.rect.moveTop(y + (height - item.rect.height()) / 2);
            if (apply)
                item.widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), item.rect));
        }
        y += height;
        line.clear();
        x = 0;
        height = 0;
    };
    forEachChild(*this, [&](QWidget* child) {
        int wish = std::min(wishOf(*child).width(), width);
        // A line that may be shortened makes room for what follows it.
        if (const auto* label = qobject_cast<const TextLabel*>(child); label && label->isElided()) {
            int others = 0;
            forEachChild(*this, [&](const QWidget* other) {
                others += other == child ? 0 : wishOf(*other).width() + gap;
            });
            wish = std::min(wish, std::max(width - others, child->minimumSizeHint().width()));
        }
        if (x > 0 && x + wish > width) {
            endLine();
            y += textGap;
        }
        const int childHeight = heightOf(*child, wish);
        line.push_back({child, QRect(x, y, wish, childHeight)});
        x += wish + gap;
        height = std::max(height, childHeight);
    });
    endLine();
    return y;
}

int Flow::heightForWidth(int width) const { return arrange(width, false); }

QSize Flow::sizeHint() const {
    constexpr int unbounded = QWIDGETSIZE_MAX;
    int width = 0;
    forEachChild(
        *this, [&](const QWidget* child) { width += wishOf(*child).width() + theme::unit(*this); });
    return {width, arrange(unbounded, false)};
}

QSize Flow::minimumSizeHint() const {
    int width = 0;
    forEachChild(*this, [&](const QWidget* child) {
        width = std::max(width, child->minimumSizeHint().width());
    });
    return {width, theme::lineHeight(*this)};
}

void Flow::arrangeChildren() { arrange(width(), true); }

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
    const QRect room(indent, 0, std::max(1, width - indent), QWIDGETSIZE_MAX);
    QRect place = fontMetrics().boundingRect(room, textFlags() & ~Qt::AlignVCenter, text());
    return {indent, 0, std::max(1, width - indent), place.height()};
}

int CheckBox::heightForWidth(int width) const {
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(textPlace(width).height(), indicator) + 2 * textGap;
}

QSize CheckBox::minimumSizeHint() const {
    const int width = theme::charactersWide(*this, fewestCharacters);
    return {std::min(sizeHint().width(), theme::checkBoxIndent(*this) + width),
            std::max(theme::lineHeight(*this), 1)};
}

bool CheckBox::hitButton(const QPoint& position) const {
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
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
        paintFieldOutline(painter, palette(),
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
