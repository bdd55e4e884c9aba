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
    Layout() {
        bind(view, bindings);
        view.makeAllParts();
    }
    ~Layout() override { bindings.clear(); }

    /// Binds what is there, and what comes as it comes.
    void bind(PaneView& shown, Subscriptions& kept) {
        const auto bindPart = [this, &kept](QWidget* part) {
            const Faults found = bindOutlets(pane, *part, kept);
            faults.insert(faults.end(), found.begin(), found.end());
        };
        bindGuidance(pane, shown, kept);
        bindPart(&shown);
        QObject::connect(&shown, &PaneView::partMade, &shown, bindPart);
    }

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
    Faults faults;
};

} // namespace zarvil::qt
