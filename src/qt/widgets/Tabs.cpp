#include "qt/widgets/Tabs.h"

#include <QTabBar>

#include <utility>

namespace zarvil::qt {

namespace {

class TabBar final : public QTabBar {
public:
    using QTabBar::QTabBar;

    [[nodiscard]] QSize sizeHint() const override {
        measure();
        return QTabBar::sizeHint();
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        measure();
        return QTabBar::minimumSizeHint();
    }

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override {
        return measured_ ? QTabBar::tabSizeHint(index) : QSize(0, 0);
    }

private:
    void measure() const {
        if (std::exchange(measured_, true))
            return;
        // Nothing else tells the bar that its tabs have got other sizes.
        auto& bar = const_cast<TabBar&>(*this);
        bar.setElideMode(bar.elideMode());
    }

    mutable bool measured_ = false;
};

} // namespace

Tabs::Tabs(QWidget* parent) : QTabWidget(parent) { setTabBar(new TabBar(this)); }

} // namespace zarvil::qt
