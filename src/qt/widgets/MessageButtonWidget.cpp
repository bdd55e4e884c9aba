#include "qt/widgets/MessageButtonWidget.h"

#include "qt/canvas/RasterPainter.h"
#include "qt/widgets/Contrast.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr QSize standardSize(90, 28);
constexpr int titleMargin = 16;
constexpr int titlePadding = 6;
constexpr double disabledOpacity = 0.5;

/// The text without the marks of its access key.
QString withoutMnemonic(const QString& text) {
    QString shown;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (text[index] == u'&' && ++index == text.size())
            break;
        shown += text[index];
    }
    return shown;
}

} // namespace

MessageButtonWidget::MessageButtonWidget(QWidget* parent) : QPushButton(parent) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (model_)
            model_->performClick();
    });
}

void MessageButtonWidget::setModel(Button& model) {
    subscriptions_.clear();
    model_ = &model;
    subscriptions_.push_back(
        model.titleProperty().observe([this](const std::string& title, Transition) {
            if (!title.empty())
                setText(QString::fromUtf8(title));
        }));
    subscriptions_.push_back(
        model.enabledProperty().observe([this](bool enabled, Transition) { setEnabled(enabled); }));
}

QSize MessageButtonWidget::sizeHint() const {
    const int title = fontMetrics().horizontalAdvance(withoutMnemonic(text()));
    return {std::max(standardSize.width(), title + 2 * titleMargin),
            std::max(standardSize.height(), fontMetrics().height() + 2 * titlePadding)};
}

void MessageButtonWidget::paintEvent(QPaintEvent* event) {
    if (isHighContrast(QGuiApplication::palette())) {
        QPushButton::paintEvent(event);
        return;
    }
    cell_.setHighlighted(isDown());
    cell_.setTitle(withoutMnemonic(text()).toStdString());
    cell_.setFontSize(std::max<double>(TextStyle::defaultFontSize, QFontInfo(font()).pixelSize()));
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    // The cell clears its frame on a bitmap of its own, not the panel behind the button.
    RasterPainter().paint(painter, size(), Orientation::YDown, [this](Canvas& canvas) {
        cell_.drawInteriorWithFrame(
            {0, 0, static_cast<double>(width()), static_cast<double>(height())}, nullptr, canvas);
    });
    paintRing(painter);
}

/// A light ring inside the button, which is dark in every theme: broad for the focus.
void MessageButtonWidget::paintRing(QPainter& painter) const {
    if (!hasFocus() && !isDefault())
        return;
    const double width = hasFocus() ? 2 : 1;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, width));
    const double inset = 1 + width / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 4, 4);
}

} // namespace zarvil::qt
