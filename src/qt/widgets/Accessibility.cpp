#include "qt/widgets/Accessibility.h"

#include "qt/widgets/LinkButtonWidget.h"
#include "qt/widgets/SwitchWidget.h"

#include <QAccessibleWidget>

namespace zarvil::qt {

namespace {

class AccessibleSwitch final : public QAccessibleWidget {
public:
    explicit AccessibleSwitch(SwitchWidget* widget)
        : QAccessibleWidget(widget, QAccessible::CheckBox) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = shown()->isOn();
        state.checkStateMixed = shown()->isMixed();
        return state;
    }
    /// The value is the label of the present state, where the switch shows one.
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? shown()->stateLabel() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(shown()->isEnabled() ? toggleAction() : QString()) +
               QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == toggleAction())
            shown()->toggle();
        else
            QAccessibleWidget::doAction(action);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override {
        return action == toggleAction() ? QStringList(QKeySequence(Qt::Key_Space).toString())
                                        : QAccessibleWidget::keyBindingsForAction(action);
    }

private:
    [[nodiscard]] SwitchWidget* shown() const { return static_cast<SwitchWidget*>(widget()); }
};

class AccessibleLink final : public QAccessibleWidget {
public:
    explicit AccessibleLink(LinkButtonWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Link) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = true;
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && shown()->accessibleName().isEmpty() ? shown()->text()
                                                                                : given;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(shown()->isEnabled() ? pressAction() : QString()) +
               QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction())
            shown()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    [[nodiscard]] LinkButtonWidget* shown() const {
        return static_cast<LinkButtonWidget*>(widget());
    }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* widget = qobject_cast<SwitchWidget*>(object))
        return new AccessibleSwitch(widget);
    if (auto* widget = qobject_cast<LinkButtonWidget*>(object))
        return new AccessibleLink(widget);
    return nullptr;
}

} // namespace

void installAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace zarvil::qt
