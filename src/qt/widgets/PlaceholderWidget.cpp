#include "qt/widgets/PlaceholderWidget.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace zarvil::qt {

namespace {

constexpr int margin = 16;
constexpr int cornerRadius = 8;

QLabel* makeLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

PlaceholderWidget::PlaceholderWidget(QWidget* parent)
    : QWidget(parent), title_(makeLabel(this)), words_(makeLabel(this)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->addStretch();
    column->addWidget(title_);
    column->addWidget(words_);
    column->addStretch();
    updateFonts();
}

void PlaceholderWidget::setText(const QString& title, const QString& words) {
    title_->setText(title);
    words_->setText(words);
    describe();
}

void PlaceholderWidget::setVisible(bool visible) {
    QWidget::setVisible(visible);
    describe();
}

QWidget* PlaceholderWidget::covered() {
    if (!covered_ && parentWidget()) {
        covered_ = parentWidget()->findChild<QWidget*>(covers_);
        if (covered_)
            covered_->installEventFilter(this);
    }
    return covered_;
}

void PlaceholderWidget::cover() {
    if (const QWidget* list = covered()) {
        setGeometry(QRect(list->mapTo(parentWidget(), QPoint()), list->size()));
        raise();
    }
}

void PlaceholderWidget::describe() {
    if (QWidget* list = covered())
        list->setAccessibleDescription(isHidden() ? QString()
                                                  : title_->text() + u'\n' + words_->text());
}

bool PlaceholderWidget::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        cover();
    return false;
}

void PlaceholderWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    cover();
}

void PlaceholderWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor outline = palette().color(QPalette::WindowText);
    outline.setAlphaF(0.3F);
    painter.setPen(QPen(outline, 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

void PlaceholderWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateFonts();
}

void PlaceholderWidget::updateFonts() {
    QFont heading = font();
    heading.setWeight(QFont::DemiBold);
    title_->setFont(heading);
}

} // namespace zarvil::qt
