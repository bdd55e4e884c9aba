#include "qt/widgets/LinkButtonWidget.h"

#include "qt/canvas/Convert.h"
#include "qt/widgets/Accessibility.h"
#include "qt/widgets/Contrast.h"
#include "qt/widgets/TextMeasure.h"

#include <QEvent>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace zarvil::qt {

namespace {

/// What text of this size needs at least to be read.
constexpr double readableContrast = 4.5;

} // namespace

class LinkButtonWidget::WidgetCursor final : public Cursor {
public:
    explicit WidgetCursor(QWidget& widget) : widget_(widget) {}
    void set(CursorShape shape) override {
        widget_.setCursor(shape == CursorShape::PointingHand ? Qt::PointingHandCursor
                                                             : Qt::ArrowCursor);
    }

private:
    QWidget& widget_;
};

LinkButtonWidget::LinkButtonWidget(QWidget* parent)
    : QAbstractButton(parent), cursor_(std::make_unique<WidgetCursor>(*this)) {
    installAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (model_)
            model_->performClick();
    });
}

LinkButtonWidget::~LinkButtonWidget() = default;

void LinkButtonWidget::setModel(Button& model) {
    subscriptions_.clear();
    model_ = &model;
    subscriptions_.push_back(model.attributedTitleProperty().observe(
        [this](const AttributedString&, Transition) { showTitle(); }));
    subscriptions_.push_back(
        model.titleProperty().observe([this](const std::string&, Transition) { showTitle(); }));
    subscriptions_.push_back(
        model.enabledProperty().observe([this](bool enabled, Transition) { setEnabled(enabled); }));
}

void LinkButtonWidget::showTitle() {
    const std::string title =
        model_->attributedTitle().empty() ? model_->title() : model_->attributedTitle().text();
    if (!title.empty())
        setText(QString::fromUtf8(title));
    updateGeometry();
    update();
}

QSize LinkButtonWidget::sizeHint() const {
    // As high as a line of text: nothing around it moves when it comes and goes.
    return textSize(*this, font(), Qt::TextSingleLine, text());
}

/// The given color where it can be read on the window, else the desktop's color of links, else
/// that of text.
QColor LinkButtonWidget::readable(const QColor& wanted) const {
    const QColor background = palette().color(QPalette::Window);
    for (const QColor& color : {wanted, palette().color(QPalette::Link)})
        if (contrastRatio(color, background) >= readableContrast)
            return color;
    return palette().color(QPalette::WindowText);
}

/// A title has one look from end to end; without a styled one it is underlined, as links are.
TextAttributes LinkButtonWidget::titleLook() const {
    TextAttributes plain;
    plain.underlineStyle = UnderlineStyle::Single;
    return model_ ? model_->attributedTitle().attributesAt(0).value_or(plain) : plain;
}

void LinkButtonWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const TextAttributes look = titleLook();
    QFont styled = font();
    styled.setUnderline(look.underlineStyle == UnderlineStyle::Single);
    painter.setFont(styled);
    const QColor color =
        look.foregroundColor ? qt::toQt(*look.foregroundColor) : palette().color(QPalette::Link);
    painter.setPen(isEnabled() ? readable(color)
                               : palette().color(QPalette::Disabled, QPalette::WindowText));
    const TextAlignment alignment = look.alignment.value_or(TextAlignment::Left);
    // An address reads the same in a window of either direction.
    const int direction =
        text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawText(rect(),
                     static_cast<int>(toQt(alignment) | Qt::AlignVCenter) | Qt::TextSingleLine |
                         direction,
                     text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void LinkButtonWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

/// The area that follows the pointer is as large as the button is made, so it is made anew.
void LinkButtonWidget::resizeEvent(QResizeEvent* /*event*/) {
    tracker_.reset();
    unsetCursor();
    hover_ = ZVURLButton::initWithLayout(
        *cursor_, {0, 0, static_cast<double>(width()), static_cast<double>(height())});
    tracker_.emplace(*hover_);
    if (underMouse())
        followPointer(QPointF(mapFromGlobal(QCursor::pos())));
}

bool LinkButtonWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        followPointer(static_cast<QHoverEvent*>(event)->position());
        break;
    case QEvent::HoverLeave:
        followPointer(std::nullopt);
        break;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        followPointer(underMouse() ? std::optional(QPointF(mapFromGlobal(QCursor::pos())))
                                   : std::nullopt);
        break;
    default:
        break;
    }
    return QAbstractButton::event(event);
}

void LinkButtonWidget::followPointer(std::optional<QPointF> position) {
    if (!tracker_)
        return;
    const auto point = position ? std::optional(Point{position->x(), position->y()}) : std::nullopt;
    tracker_->update(point, isActiveWindow() ? WindowActivity::Key : WindowActivity::NotKey);
}

} // namespace zarvil::qt
