#include "qt/widgets/PlaceholderWidget.h"

#include "qt/widgets/SymbolWidget.h"
#include "qt/widgets/TextLabel.h"
#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int margin = 16;
constexpr int symbolExtent = 36;

TextLabel* makeLabel(TextLabel::Look look, QWidget* parent) {
    auto* label = new TextLabel(parent);
    label->setLook(look);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

PlaceholderWidget::PlaceholderWidget(QWidget* parent)
    : QWidget(parent),
      symbol_(new SymbolWidget(this)),
      title_(makeLabel(TextLabel::Heading, this)),
      words_(makeLabel(TextLabel::Quiet, this)) {
    symbol_->setExtent(symbolExtent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->addStretch();
    column->addWidget(symbol_, 0, Qt::AlignHCenter);
    column->addWidget(title_);
    column->addWidget(words_);
    column->addStretch();
}

void PlaceholderWidget::setText(Symbol symbol, const QString& title, const QString& words) {
    symbol_->setSymbol(symbol);
    title_->setText(title);
    words_->setText(words);
    showSymbolWhereItFits();
    describe();
}

void PlaceholderWidget::showSymbolWhereItFits() {
    if (!isVisible())
        return;
    const int width = std::max(0, this->width() - 2 * margin);
    const int words = title_->heightForWidth(width) + words_->heightForWidth(width);
    const int gaps = 2 * margin + 2 * layout()->spacing();
    symbol_->setHidden(height() < gaps + symbolExtent + words);
}

void PlaceholderWidget::setVisible(bool visible) {
    QWidget::setVisible(visible);
    describe();
    QWidget* list = hidesCovered_ ? covered() : nullptr;
    if (!list)
        return;
    // What it holds, for a widget that is hidden itself does not tell where it is laid out.
    for (auto* part : list->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        part->setVisible(!visible);
    list->setMinimumHeight(visible ? minimumSizeHint().height() : 0);
}

QWidget* PlaceholderWidget::covered() {
    if (!covered_ && parentWidget()) {
        covered_ = parentWidget()->findChild<QWidget*>(covers_);
        // It moves when what it stands in moves.
        for (QWidget* widget = covered_; widget && widget != parentWidget();
             widget = widget->parentWidget())
            widget->installEventFilter(this);
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
    else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return false;
}

void PlaceholderWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    cover();
    showSymbolWhereItFits();
}

void PlaceholderWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showSymbolWhereItFits();
}

void PlaceholderWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // An empty list has no row to show the keyboard on.
    const bool focused = covered_ && covered_->hasFocus();
    const double width = focused ? 2 : 1;
    const QColor ground = palette().color(QPalette::Window);
    painter.setPen(focused ? QPen(theme::shield(palette()), width)
                           : QPen(theme::mixed(ground, theme::mutedText(palette()), 0.45), width,
                                  Qt::DashLine));
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                            theme::cardRadius, theme::cardRadius);
}

} // namespace zarvil::qt
