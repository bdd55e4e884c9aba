#include "qt/widgets/SwitchWidget.h"

#include "qt/widgets/Accessibility.h"
#include "qt/widgets/Contrast.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zarvil::qt {

namespace {

constexpr QSize standardSize(60, 26);
constexpr double ringWidth = 2;
/// The track stands this far inside the cell.
constexpr double trackInset = 1;

} // namespace

SwitchWidget::SwitchWidget(QWidget* parent) : QWidget(parent) {
    installAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SwitchWidget::setModel(Button& model) {
    subscriptions_.clear();
    model_ = &model;
    mouseLoop_.emplace(model);
    announcedState_.reset();
    tellFrame();
    subscriptions_.push_back(model.stateProperty().observe([this](int, Transition) {
        update();
        // Later: at the end of a drag the state passes through a value that nobody shall hear of.
        QMetaObject::invokeMethod(this, &SwitchWidget::announceState, Qt::QueuedConnection);
    }));
    subscriptions_.push_back(
        model.enabledProperty().observe([this](bool enabled, Transition) { setEnabled(enabled); }));
    subscriptions_.push_back(
        model.cell().highlightedProperty().observe([this](bool, Transition) { update(); }));
    subscriptions_.push_back(model.observeDrawCell([this] { update(); }));
}

bool SwitchWidget::isOn() const { return model_ && model_->state() == buttonState::on; }

bool SwitchWidget::isMixed() const { return model_ && model_->state() == buttonState::mixed; }

QString SwitchWidget::stateLabel() const {
    const auto* cell = model_ ? model_->cellAs<KXButtonCell>() : nullptr;
    if (!cell || !cell->showStateExtras())
        return {};
    return QString::fromUtf8(isOn() ? cell->onTitle() : cell->offTitle());
}

void SwitchWidget::toggle() {
    if (model_)
        model_->performClick();
}

QSize SwitchWidget::sizeHint() const {
    return standardSize + QSize(2 * ringMargin, 2 * ringMargin);
}

QRectF SwitchWidget::cellRect() const {
    return QRectF(rect()).adjusted(ringMargin, ringMargin, -ringMargin, -ringMargin);
}

Point SwitchWidget::inCell(const QPointF& position) const {
    const QPointF inside = position - cellRect().topLeft();
    return {inside.x(), inside.y()};
}

void SwitchWidget::tellFrame() {
    if (!model_)
        return;
    const QRectF cell = cellRect().translated(pos());
    model_->setFrame({cell.x(), cell.y(), cell.width(), cell.height()});
}

void SwitchWidget::paintEvent(QPaintEvent* /*event*/) {
    const auto* cell = model_ ? model_->cellAs<KXButtonCell>() : nullptr;
    const QRectF place = cellRect();
    if (!cell || place.isEmpty())
        return;
    QPainter painter(this);
    painter.translate(place.topLeft());
    raster_.paint(painter, place.size(), Orientation::YDown,
                  [&](Canvas& canvas) { cell->drawWithFrame(model_->bounds(), model_, canvas); });
    painter.setRenderHint(QPainter::Antialiasing);
    if (isHighContrast(palette()))
        paintOutline(painter, -0.5, 1, palette().color(QPalette::WindowText));
    if (hasFocus() && cell->focusRingType() != FocusRingType::None)
        paintOutline(painter, ringWidth / 2, ringWidth, palette().color(QPalette::Highlight));
}

/// Draws around the track, at a distance to the cell's edge.
void SwitchWidget::paintOutline(QPainter& painter, double distance, double width,
                                const QColor& color) const {
    const double outset = distance;
    const QRectF ring = QRectF({}, cellRect().size()).adjusted(-outset, -outset, outset, outset);
    const double radius = (ring.height() - trackInset) / 2;
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, radius, radius);
}

void SwitchWidget::mousePressEvent(QMouseEvent* event) {
    if (!mouseLoop_ || event->button() != Qt::LeftButton ||
        !mouseLoop_->press(inCell(event->position())))
        event->ignore();
}

void SwitchWidget::mouseMoveEvent(QMouseEvent* event) {
    if (mouseLoop_)
        mouseLoop_->drag(inCell(event->position()));
}

void SwitchWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (mouseLoop_ && event->button() == Qt::LeftButton)
        mouseLoop_->release(inCell(event->position()));
}

void SwitchWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        toggle();
    else if (event->key() == Qt::Key_Left)
        setByUser(buttonState::off);
    else if (event->key() == Qt::Key_Right)
        setByUser(buttonState::on);
    else
        QWidget::keyPressEvent(event);
}

void SwitchWidget::setByUser(int state) {
    if (!model_ || !model_->isEnabled() || model_->state() == state)
        return;
    model_->setState(state);
    model_->sendAction();
}

void SwitchWidget::announceState() {
    if (!model_ || announcedState_ == model_->state())
        return;
    const bool isFirst = !announcedState_;
    announcedState_ = model_->state();
    if (isFirst)
        return;
    QAccessible::State changed;
    changed.checked = true;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void SwitchWidget::resizeEvent(QResizeEvent* /*event*/) { tellFrame(); }

void SwitchWidget::moveEvent(QMoveEvent* /*event*/) { tellFrame(); }

void SwitchWidget::hideEvent(QHideEvent* /*event*/) {
    if (mouseLoop_)
        mouseLoop_->cancel();
}

/// A disabled widget hears of no release, so that a press ends here.
void SwitchWidget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled() && mouseLoop_)
        mouseLoop_->cancel();
    QWidget::changeEvent(event);
}

} // namespace zarvil::qt
