#pragma once

#include "PaneHarness.h"
#include "qt/binding/OutletBinder.h"
#include "qt/pane/PaneView.h"

#include <QTabWidget>
#include <QTest>

#include <stdexcept>
#include <string>

namespace zarvil::qt {

/// The view of the pane, bound to a pane whose surroundings are fakes.
class Layout : public PaneHarness {
protected:
    ~Layout() override { bindings.clear(); }

    template <typename Widget>
    Widget& widget(const char* name) {
        auto* found = view.findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    /// Shows the view on a page and gives a field the keyboard.
    void focus(QWidget& field, int page) {
        widget<QTabWidget>("tabView").setCurrentIndex(page);
        view.show();
        view.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        field.setFocus();
        ASSERT_TRUE(field.hasFocus());
    }

    PaneView view;
    Subscriptions bindings;
    Faults faults = bindOutlets(pane, view, bindings);
};

} // namespace zarvil::qt
