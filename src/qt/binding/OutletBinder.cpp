#include "qt/binding/OutletBinder.h"

#include "pane/Zarvil_Preferences.h"
#include "qt/binding/LockWidget.h"
#include "qt/binding/Spinner.h"
#include "qt/canvas/Convert.h"
#include "qt/devices/DeviceListView.h"
#include "qt/scripts/ScriptListView.h"
#include "qt/widgets/Accessibility.h"
#include "qt/widgets/Form.h"
#include "qt/widgets/LinkButtonWidget.h"
#include "qt/widgets/PlaceholderWidget.h"
#include "qt/widgets/SwitchWidget.h"
#include "qt/widgets/SymbolWidget.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include <algorithm>
#include <map>
#include <set>

namespace zarvil::qt {

namespace {

/// Called by `visitOutlets` with each outlet as what it is.
class Binder {
public:
    Binder(Zarvil_Preferences& pane, QWidget& part, Subscriptions& kept, Faults& faults)
        : pane_(pane),
          widgets_(QList{&part} + part.findChildren<QWidget*>()),
          kept_(kept),
          faults_(faults) {
        for (QWidget* widget : widgets_)
            if (claimsOutlet(*widget))
                claimed_.emplace(widget->objectName().toStdString(), widget);
    }

    void operator()(std::string_view name, Button& model) {
        QWidget* widget = find(name);
        adoptAction(model, widget);
        if (auto* toggle = qobject_cast<SwitchWidget*>(widget))
            bindDrawn(model, *toggle);
        else if (auto* link = qobject_cast<LinkButtonWidget*>(widget))
            bindDrawn(model, *link);
        else if (auto* button = qobject_cast<QAbstractButton*>(widget))
            bindButton(model, *button, kept_);
        else if (widget)
            mismatch(name);
    }

    void operator()(std::string_view name, TextField& model) {
        QWidget* widget = find(name);
        adoptAction(model, widget);
        if (auto* field = qobject_cast<QLineEdit*>(widget))
            bindField(model, *field, kept_);
        else if (auto* label = qobject_cast<QLabel*>(widget))
            bindLabel(model, *label, kept_);
        else if (widget)
            mismatch(name);
    }

    void operator()(std::string_view name, ProgressIndicator& model) {
        if (auto* spinner = findAs<Spinner>(name))
            bindIndicator(model, *spinner, kept_);
    }

    void operator()(std::string_view name, AuthorizationView& model) {
        if (auto* lock = findAs<LockWidget>(name))
            bindAuthorization(model, *lock, kept_);
    }

    void operator()(std::string_view name, Panel& model) {
        auto* dialog = findAs<QDialog>(name);
        if (!dialog)
            return;
        bindPanel(model, *dialog, kept_);
        // Closing it in any other way than by its buttons cancels.
        QObject::connect(dialog, &QDialog::rejected, dialog, [pane = &pane_] {
            pane->performAction("uninstallSheetFinished:", nullptr);
        });
    }

    void operator()(std::string_view name, CollectionView& model) {
        QWidget* widget = find(name);
        if (!widget)
            return;
        bindView(model, *widget, kept_);
        if (auto* devices = qobject_cast<DeviceListView*>(widget))
            devices->setModel(model);
        else if (auto* scripts = qobject_cast<ScriptListView*>(widget))
            scripts->setModel(model);
        else
            mismatch(name);
    }

    void operator()(std::string_view name, SymbolView& model) {
        if (auto* symbol = findAs<SymbolWidget>(name))
            bindSymbol(model, *symbol, kept_);
    }

    void operator()(std::string_view name, Banner& model) {
        if (auto* banner = findAs<BannerRow>(name))
            bindBanner(model, *banner, kept_);
    }

    void operator()(std::string_view name, Placeholder& model) {
        if (auto* placeholder = findAs<PlaceholderWidget>(name))
            bindPlaceholder(model, *placeholder, kept_);
    }

    void operator()(std::string_view name, View& model) {
        if (QWidget* widget = find(name))
            bindView(model, *widget, kept_);
    }

    /// Actions of widgets that are no outlets, captions that tell of an outlet's fault, and widgets
    /// that claim a name that the pane does not know.
    void bindTheRest() {
        for (QWidget* widget : widgets_) {
            checkName(*widget);
            checkAction(*widget);
            if (auto* label = qobject_cast<QLabel*>(widget))
                bindFault(*label);
        }
    }

private:
    static bool claimsOutlet(const QWidget& widget) {
        const QString name = widget.objectName();
        return !name.isEmpty() && name.front().isLower() && !name.startsWith(QLatin1String("qt_"));
    }

    QWidget* find(std::string_view name) {
        known_.insert(name);
        const auto found = claimed_.find(name);
        return found == claimed_.end() ? nullptr : found->second;
    }

    template <typename Widget>
    Widget* findAs(std::string_view name) {
        QWidget* widget = find(name);
        auto* typed = qobject_cast<Widget*>(widget);
        if (widget && !typed)
            mismatch(name);
        return typed;
    }

    /// Drawn controls follow their model's state, title and enabling by themselves.
    template <typename Widget>
    void bindDrawn(Button& model, Widget& widget) {
        widget.setModel(model);
        bindView(model, widget, kept_);
    }

    void mismatch(std::string_view name) {
        faults_.push_back("the widget of " + std::string(name) + " is of the wrong kind");
    }

    static std::string actionOf(const QWidget& widget) {
        return widget.property("action").toString().toStdString();
    }

    void adoptAction(Control& model, const QWidget* widget) {
        if (widget && !actionOf(*widget).empty())
            model.setAction(actionOf(*widget));
    }

    void checkName(const QWidget& widget) {
        const std::string name = widget.objectName().toStdString();
        if (claimsOutlet(widget) && !known_.contains(name))
            faults_.push_back("no outlet for the widget " + name);
    }

    void checkAction(QWidget& widget) {
        const std::string action = actionOf(widget);
        if (action.empty())
            return;
        if (!std::ranges::count(Zarvil_Preferences::actionNames(), action))
            faults_.push_back("no action " + action);
        if (known_.contains(widget.objectName().toStdString()))
            return;
        if (auto* button = qobject_cast<QAbstractButton*>(&widget))
            QObject::connect(button, &QAbstractButton::clicked, button,
                             [this_ = &pane_, action] { this_->performAction(action, nullptr); });
        else
            faults_.push_back("the widget of the action " + action + " is no button");
    }

    /// A label that shows the fault of a field.
    void bindFault(QLabel& label) {
        const std::string name = label.property("faultOf").toString().toStdString();
        if (name.empty())
            return;
        visitOutlets(pane_, [&](std::string_view outlet, View& view) {
            const auto* field = dynamic_cast<TextField*>(&view);
            if (!field || outlet != name)
                return;
            kept_.push_back(
                field->faultProperty().observe([&label](const std::string& fault, Transition) {
                    label.setText(QString::fromUtf8(fault));
                    label.setHidden(fault.empty());
                }));
        });
    }

    Zarvil_Preferences& pane_;
    const QList<QWidget*> widgets_;
    Subscriptions& kept_;
    Faults& faults_;
    std::map<std::string, QWidget*, std::less<>> claimed_; ///< widgets by their names
    std::set<std::string_view> known_;                     ///< outlets, whether here or not
};

} // namespace

Faults bindOutlets(Zarvil_Preferences& pane, QWidget& part, Subscriptions& kept) {
    Faults faults;
    Binder binder(pane, part, kept, faults);
    visitOutlets(pane, binder);
    visitGuidance(pane.guidance, binder);
    binder.bindTheRest();
    return faults;
}

/// The pages stand in the order of `Tab`.
void bindGuidance(Zarvil_Preferences& pane, QWidget& layout, Subscriptions& kept) {
    Guidance& guidance = pane.guidance;
    kept.push_back(guidance.observeAnnouncements(
        [&layout](const auto& words) { announce(layout, QString::fromUtf8(words)); }));
    auto* tabs = layout.findChild<QTabWidget*>(QStringLiteral("tabView"));
    kept.push_back(guidance.selectedTabProperty().observe(
        [tabs](Tab tab, Transition) { tabs->setCurrentIndex(static_cast<int>(tab)); }));
    QObject::connect(tabs, &QTabWidget::currentChanged, tabs,
                     [&guidance](int index) { guidance.selectTab(static_cast<Tab>(index)); });
}

Faults missingOutlets(Zarvil_Preferences& pane, const QWidget& layout) {
    Faults faults;
    const auto seek = [&](std::string_view name, const auto& /*model*/) {
        if (!layout.findChild<QWidget*>(QString::fromUtf8(name)))
            faults.push_back("no widget for the outlet " + std::string(name));
    };
    visitOutlets(pane, seek);
    visitGuidance(pane.guidance, seek);
    return faults;
}

} // namespace zarvil::qt
