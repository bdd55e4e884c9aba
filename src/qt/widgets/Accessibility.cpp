#include "qt/widgets/Accessibility.h"

#include "qt/widgets/Form.h"
#include "qt/widgets/LinkButtonWidget.h"
#include "qt/widgets/SwitchWidget.h"

#include <QAccessibleWidget>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

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

/// Qt takes every frame for a window's.
class AccessibleCard final : public QAccessibleWidget {
public:
    explicit AccessibleCard(Card* card) : QAccessibleWidget(card, QAccessible::Grouping) {}
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* widget = qobject_cast<SwitchWidget*>(object))
        return new AccessibleSwitch(widget);
    if (auto* widget = qobject_cast<LinkButtonWidget*>(object))
        return new AccessibleLink(widget);
    if (auto* card = qobject_cast<Card*>(object))
        return new AccessibleCard(card);
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

/// Qt 6.4 has no event for it, so that the signal goes out by Qt's own connection to the
/// accessibility bus; that one is there only while somebody listens.
void announce(QWidget& speaker, const QString& words) {
    QDBusConnection bus(QStringLiteral("a11y"));
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&speaker);
    if (words.isEmpty() || !interface || !QAccessible::isActive() || !bus.isConnected())
        return;
    constexpr int polite = 1;
    QDBusMessage signal = QDBusMessage::createSignal(
        QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(interface)),
        QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
    signal << QString() << polite << 0 << QVariant::fromValue(QDBusVariant(words)) << QVariantMap();
    bus.send(signal);
}

} // namespace zarvil::qt
