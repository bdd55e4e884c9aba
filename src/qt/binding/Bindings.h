#pragma once

#include "protocol/Subscription.h"

#include <vector>

class QAbstractButton;
class QDialog;
class QLabel;
class QLineEdit;
class QWidget;

namespace zarvil {
class AuthorizationView;
class Banner;
class Button;
class Panel;
class Placeholder;
class ProgressIndicator;
class SymbolView;
class TextField;
class View;
} // namespace zarvil

/// One function per pair of model and widget: the widget shows the model from now on, the user's
/// operation of the widget goes to the model. Where a model has no text yet it takes the layout's.
/// A binding lasts as long as its subscriptions and must end before widget or model goes.
namespace zarvil::qt {

class BannerRow;
class LockWidget;
class PlaceholderWidget;
class Spinner;
class SymbolWidget;

using Subscriptions = std::vector<Subscription>;

void bindView(View& model, QWidget& widget, Subscriptions& kept);
void bindButton(Button& model, QAbstractButton& widget, Subscriptions& kept);
void bindLabel(TextField& model, QLabel& widget, Subscriptions& kept);
void bindField(TextField& model, QLineEdit& widget, Subscriptions& kept);
void bindPlaceholder(Placeholder& model, PlaceholderWidget& widget, Subscriptions& kept);
void bindIndicator(ProgressIndicator& model, Spinner& widget, Subscriptions& kept);
void bindAuthorization(AuthorizationView& model, LockWidget& widget, Subscriptions& kept);
void bindSymbol(SymbolView& model, SymbolWidget& widget, Subscriptions& kept);
void bindBanner(Banner& model, BannerRow& widget, Subscriptions& kept);
void bindPanel(Panel& model, QDialog& widget, Subscriptions& kept);

} // namespace zarvil::qt
