#include "qt/widgets/Form.h"

#include "qt/widgets/TextLabel.h"
#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int sectionAbove = 22;
constexpr int sectionBelow = 8;
constexpr int pictureGap = 14;
constexpr int bannerPictureShift = 6;

} // namespace

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
    for (QWidget* child : placedChildren()) {
        const QString place = child->property("place").toString();
        auto& group = place == QLatin1String("start")   ? found.start
                      : place == QLatin1String("label") ? found.label
                      : place == QLatin1String("end")   ? found.end
                                                        : found.text;
        group.push_back(child);
    }
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

Row::Measures Row::measure(int width, const Parts& group) const {
    Measures is{};
    is.step = theme::unit(*this);
    is.left = padding().left() + startSpace(group);
    is.room = std::max(0, width - is.left - padding().right());
    for (const QWidget* control : group.end) {
        const QSize size = wishOf(*control);
        is.end.rwidth() += size.width() + (is.end.width() > 0 ? is.step : 0);
        is.end.setHeight(std::max(is.end.height(), size.height()));
    }
    const int fewest = theme::charactersWide(*this, theme::fewestCharacters);
    const int gap = 2 * is.step;
    const int label = group.label.empty() ? 0 : labelWidth() + gap;
    is.labelAbove = label > 0 && is.room - label < fewest;
    is.label = is.labelAbove ? 0 : label;
    is.endBelow = is.end.width() > 0 && !group.text.empty() &&
                  is.room - label - is.end.width() - gap < fewest;
    is.text = std::max(0, is.room - is.label -
                              (is.end.width() > 0 && !is.endBelow ? is.end.width() + gap : 0));
    return is;
}

int Row::placeTexts(const Parts& group, QPoint corner, int width, Places& places) const {
    int height = 0;
    int indent = 0;
    for (QWidget* widget : group.text) {
        if (height > 0)
            height += theme::textGap;
        const int inset = qobject_cast<QLabel*>(widget) ? indent : 0;
        const QSize size(width - inset, heightOf(*widget, width - inset));
        places.push_back({widget, QRect(corner + QPoint(inset, height), size)});
        height += size.height();
        if (qobject_cast<QCheckBox*>(widget))
            indent = theme::checkBoxIndent(*this);
    }
    return height;
}

void Row::placePictures(const Parts& group, int y, int height, Places& places) const {
    int x = pictureInset();
    for (QWidget* picture : group.start) {
        const QSize size = wishOf(*picture);
        // Pictures of several rows share their centre, whatever their size.
        const int slot = startWidth_ > 0 ? startWidth_ : size.width();
        const QPoint corner(x + (slot - size.width()) / 2, y + (height - size.height()) / 2);
        places.push_back({picture, QRect(corner, size)});
        if (startWidth_ == 0)
            x += size.width() + 2 * theme::unit(*this);
    }
}

int Row::arrange(int width, Places& places) const {
    const Parts group = parts();
    const Measures is = measure(width, group);
    int y = padding().top();
    if (is.labelAbove) {
        for (QWidget* widget : group.label) {
            const QSize size(is.room, heightOf(*widget, is.room));
            places.push_back({widget, QRect(QPoint(is.left, y), size)});
            y += size.height() + theme::textGap;
        }
    }
    const int textLeft = is.left + is.label;
    const std::size_t firstText = places.size();
    const int textHeight = placeTexts(group, {textLeft, y}, is.text, places);
    const int firstHeight = group.text.empty() ? 0 : places[firstText].rect.height();
    int height = is.endBelow ? textHeight : std::max(textHeight, is.end.height());
    for (const QWidget* picture : group.start)
        height = std::max(height, wishOf(*picture).height());
    for (std::size_t index = firstText; index < places.size(); ++index)
        places[index].rect.translate(0, (height - textHeight) / 2);
    if (!is.labelAbove) {
        for (QWidget* widget : group.label) {
            const QSize size(is.label, heightOf(*widget, is.label));
            const int top = group.text.empty() ? y : places[firstText].rect.top();
            const QPoint corner(is.left, top + (firstHeight - size.height()) / 2);
            places.push_back({widget, QRect(corner, size)});
        }
    }
    placePictures(group, y, height, places);
    if (is.endBelow)
        y += height + is.step;
    const int endHeight = is.endBelow ? is.end.height() : height;
    int x = is.endBelow ? textLeft : width - padding().right() - is.end.width();
    for (QWidget* control : group.end) {
        const QSize size = wishOf(*control);
        places.push_back({control, QRect(QPoint(x, y + (endHeight - size.height()) / 2), size)});
        x += size.width() + is.step;
    }
    return y + endHeight + padding().bottom();
}

void Row::arrangeChildren() {
    Places places;
    arrange(width(), places);
    for (const Place& place : places)
        place.widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place.rect));
}

int Row::heightForWidth(int width) const {
    Places places;
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
    const int least = std::min(text, theme::charactersWide(*this, theme::fewestCharacters));
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

bool Row::event(QEvent* event) {
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
    return {0, step, step + theme::textGap, step};
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

} // namespace zarvil::qt
