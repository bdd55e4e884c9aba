#include "qt/widgets/Arranger.h"

#include "qt/widgets/TextLabel.h"
#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace zarvil::qt {

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
    /// A row is never higher than what it holds: what is left of a page lies below all rows.
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
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

bool Arranger::event(QEvent* event) {
    if (event->type() == QEvent::ChildAdded)
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    return QWidget::event(event);
}

bool Arranger::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::EnabledChange)
        update(); // the outline around the child
    return QWidget::eventFilter(watched, event);
}

void Arranger::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    theme::paintFieldOutlines(painter, *this);
}

std::vector<QWidget*> Arranger::placedChildren() const {
    std::vector<QWidget*> placed;
    for (QObject* object : children()) {
        auto* child = qobject_cast<QWidget*>(object);
        if (child && !child->isWindow() &&
            (!child->isHidden() || child->sizePolicy().retainSizeWhenHidden()))
            placed.push_back(child);
    }
    return placed;
}

QSize Arranger::wishOf(const QWidget& child) {
    if (const auto* button = qobject_cast<const QPushButton*>(&child))
        return theme::buttonSize(*button);
    QSize wish = child.sizeHint().expandedTo(child.minimumSizeHint());
    const int digits =
        qobject_cast<const QLineEdit*>(&child) ? child.property("digits").toInt() : 0;
    if (digits > 0)
        wish.setWidth(child.minimumSizeHint().width() +
                      digits * child.fontMetrics().horizontalAdvance(u'0'));
    return wish.expandedTo(child.minimumSize()).boundedTo(child.maximumSize());
}

int Arranger::heightOf(const QWidget& child, int width) {
    return child.hasHeightForWidth() ? child.heightForWidth(width) : wishOf(child).height();
}

// Flow

Flow::Flow(QWidget* parent) : Arranger(parent) {}

void Flow::setGap(int gap) {
    gap_ = gap;
    layout()->invalidate();
}

int Flow::arrange(int width, bool apply) const {
    const int gap = gap_ >= 0 ? gap_ : theme::unit(*this);
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
    for (QWidget* child : placedChildren()) {
        int wish = std::min(wishOf(*child).width(), width);
        // A line that may be shortened makes room for what follows it.
        if (const auto* label = qobject_cast<const TextLabel*>(child); label && label->isElided()) {
            int others = 0;
            for (const QWidget* other : placedChildren())
                others += other == child ? 0 : wishOf(*other).width() + gap;
            wish = std::min(wish, std::max(width - others, child->minimumSizeHint().width()));
        }
        if (x > 0 && x + wish > width) {
            endLine();
            y += theme::textGap;
        }
        const int childHeight = heightOf(*child, wish);
        line.push_back({child, QRect(x, y, wish, childHeight)});
        x += wish + gap;
        height = std::max(height, childHeight);
    }
    endLine();
    return y;
}

int Flow::heightForWidth(int width) const { return arrange(width, false); }

QSize Flow::sizeHint() const {
    constexpr int unbounded = QWIDGETSIZE_MAX;
    int width = 0;
    for (const QWidget* child : placedChildren())
        width += wishOf(*child).width() + theme::unit(*this);
    return {width, arrange(unbounded, false)};
}

QSize Flow::minimumSizeHint() const {
    int width = 0;
    for (const QWidget* child : placedChildren())
        width = std::max(width, child->minimumSizeHint().width());
    return {width, theme::lineHeight(*this)};
}

void Flow::arrangeChildren() { arrange(width(), true); }

} // namespace zarvil::qt
