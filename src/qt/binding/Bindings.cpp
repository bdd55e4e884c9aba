#include "qt/binding/Bindings.h"

#include "interface/AuthorizationView.h"
#include "interface/Banner.h"
#include "interface/Button.h"
#include "interface/Panel.h"
#include "interface/Placeholder.h"
#include "interface/ProgressIndicator.h"
#include "interface/Symbol.h"
#include "interface/TextField.h"
#include "qt/binding/LockWidget.h"
#include "qt/binding/Opacity.h"
#include "qt/binding/Spinner.h"
#include "qt/canvas/Convert.h"
#include "qt/widgets/Form.h"
#include "qt/widgets/PlaceholderWidget.h"
#include "qt/widgets/SymbolWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

namespace zarvil::qt {

namespace {

void bindEnabled(Control& model, QWidget& widget, Subscriptions& kept) {
    kept.push_back(model.enabledProperty().observe(
        [&widget](bool enabled, Transition) { widget.setEnabled(enabled); }));
}

/// A check box that only shows a state takes no clicks, but stays legible.
bool showsOnly(const QWidget& widget) { return widget.property("readOnly").toBool(); }

/// A text with the access key that the layout names in "mnemonic", where the text has that letter:
/// for texts that come without one from the core, or that must stand without one in its models.
QString withMnemonic(const std::string& text, const QWidget& widget) {
    QString shown = QString::fromUtf8(text);
    const QString letter = widget.property("mnemonic").toString();
    const qsizetype place = letter.isEmpty() ? -1 : shown.indexOf(letter);
    return place < 0 ? shown : shown.insert(place, u'&');
}

/// The attributes of a whole text; a label shows one color and one alignment.
void showAttributes(QLabel& label, const AttributedString& text) {
    const TextAttributes attributes = text.attributesAt(0).value_or(TextAttributes{});
    QPalette palette;
    if (attributes.foregroundColor)
        palette.setColor(label.foregroundRole(), toQt(*attributes.foregroundColor));
    label.setPalette(palette);
    if (attributes.alignment)
        label.setAlignment(toQt(*attributes.alignment) | Qt::AlignVCenter);
}

} // namespace

void bindView(View& model, QWidget& widget, Subscriptions& kept) {
    kept.push_back(model.hiddenProperty().observe([&widget](bool hidden, Transition) {
        // What nobody hid comes up with its window, and is not laid out before.
        if (hidden || widget.testAttribute(Qt::WA_WState_ExplicitShowHide))
            widget.setVisible(!hidden);
    }));
    kept.push_back(model.alphaProperty().observe([&widget](double alpha, Transition transition) {
        showOpacity(widget, alpha, transition);
    }));
}

void bindButton(Button& model, QAbstractButton& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    bindEnabled(model, widget, kept);
    if (model.title().empty())
        model.setTitle(widget.text().toStdString());
    kept.push_back(model.titleProperty().observe([&widget](const std::string& title, Transition) {
        widget.setText(withMnemonic(title, widget));
    }));
    const auto showState = [&widget](int state, Transition) {
        widget.setChecked(state == buttonState::on);
    };
    kept.push_back(model.stateProperty().observe(showState));
    if (showsOnly(widget)) {
        widget.setAttribute(Qt::WA_TransparentForMouseEvents);
        widget.setFocusPolicy(Qt::NoFocus);
        return;
    }
    if (!widget.isCheckable()) {
        QObject::connect(&widget, &QAbstractButton::clicked, &widget,
                         [&model] { model.performClick(); });
        return;
    }
    // Not `clicked`: assistive programs toggle a check box without clicking it.
    QObject::connect(&widget, &QAbstractButton::toggled, &widget, [&model, showState](bool on) {
        if (on != (model.state() == buttonState::on))
            model.performClick();
        showState(model.state(), Transition::Immediate);
    });
}

void bindLabel(TextField& model, QLabel& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    bindEnabled(model, widget, kept);
    if (model.stringValue().empty())
        model.setStringValue(widget.text().toStdString());
    kept.push_back(model.stringProperty().observe([&widget](const std::string& text, Transition) {
        widget.setText(withMnemonic(text, widget));
    }));
    kept.push_back(model.attributedStringProperty().observe(
        [&widget](const AttributedString& text, Transition) { showAttributes(widget, text); }));
}

void bindField(TextField& model, QLineEdit& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    bindEnabled(model, widget, kept);
    kept.push_back(model.stringProperty().observe([&widget](const std::string& text, Transition) {
        const QString shown = QString::fromUtf8(text);
        if (widget.text() != shown)
            widget.setText(shown);
    }));
    kept.push_back(model.faultProperty().observe([&widget](const std::string& fault, Transition) {
        widget.setAccessibleDescription(QString::fromUtf8(fault));
    }));
    // Not `textEdited`: assistive programs set the text without typing it.
    QObject::connect(&widget, &QLineEdit::textChanged, &widget,
                     [&model](const QString& text) { model.userDidEdit(text.toStdString()); });
    if (widget.property("commitsOnReturnOnly").toBool()) {
        QObject::connect(&widget, &QLineEdit::returnPressed, &widget,
                         [&model] { model.sendAction(); });
        return;
    }
    QObject::connect(&widget, &QLineEdit::returnPressed, &widget,
                     [&model] { model.userDidPressReturn(); });
    // Not `editingFinished`: after Return it does not tell that the field is left.
    QObject::connect(qApp, &QApplication::focusChanged, &widget,
                     [&model, &widget](QWidget* left, QWidget* /*entered*/) {
                         if (left == &widget)
                             model.userDidLeave();
                     });
}

void bindPlaceholder(Placeholder& model, PlaceholderWidget& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    kept.push_back(model.textProperty().observe([&widget](const Placeholder::Text& text,
                                                          Transition) {
        widget.setText(text.symbol, QString::fromUtf8(text.title), QString::fromUtf8(text.words));
    }));
}

void bindIndicator(ProgressIndicator& model, Spinner& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    kept.push_back(model.animatingProperty().observe(
        [&widget](bool animating, Transition) { widget.setAnimating(animating); }));
}

void bindAuthorization(AuthorizationView& model, LockWidget& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    kept.push_back(model.reasonProperty().observe([&widget](const std::string& reason, Transition) {
        widget.setReason(QString::fromUtf8(reason));
    }));
    QObject::connect(&widget, &LockWidget::clicked, &widget, [&model] { model.performClick(); });
}

void bindSymbol(SymbolView& model, SymbolWidget& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    kept.push_back(model.symbolProperty().observe(
        [&widget](Symbol symbol, Transition) { widget.setSymbol(symbol); }));
}

void bindBanner(Banner& model, BannerRow& widget, Subscriptions& kept) {
    bindView(model, widget, kept);
    kept.push_back(model.prominentProperty().observe(
        [&widget](bool prominent, Transition) { widget.setProminent(prominent); }));
}

void bindPanel(Panel& model, QDialog& widget, Subscriptions& kept) {
    kept.push_back(model.onScreenProperty().observe([&model, &widget](bool onScreen, Transition) {
        if (onScreen && !model.isOpaque())
            widget.setAttribute(Qt::WA_TranslucentBackground);
        widget.setVisible(onScreen);
    }));
}

} // namespace zarvil::qt
