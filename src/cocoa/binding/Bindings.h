#pragma once

#import <AppKit/AppKit.h>

#include "protocol/Subscription.h"

#include <functional>
#include <vector>

namespace zarvil {
class Banner;
class Button;
class Panel;
class Placeholder;
class ProgressIndicator;
class SymbolView;
class TextField;
class View;
} // namespace zarvil

@class ZVBannerView;
@class ZVPlaceholderView;
@class ZVSymbolView;

/// One function per pair of model and view: the view shows the model from now on. What the user
/// does with the view goes to the model: edits at once, a control's action when the result is
/// called. Where a model has no text yet it takes the layout's. A binding lasts as long as its
/// subscriptions, which share the view, and must end before the model goes.
namespace zarvil::cocoa {

class CocoaModalLoop;

using Subscriptions = std::vector<Subscription>;
/// To be called when the bound control has sent its action.
using Operated = std::function<void()>;

/// Gives an object a delegate until the subscription ends, which shares it: the object does not.
[[nodiscard]] Subscription setDelegate(id object, id delegate);

void bindView(View& model, NSView* view, Subscriptions& kept);
[[nodiscard]] Operated bindButton(Button& model, NSButton* view, Subscriptions& kept);
void bindLabel(TextField& model, NSTextField* view, Subscriptions& kept);
[[nodiscard]] Operated bindField(TextField& model, NSTextField* view, Subscriptions& kept);
/// Shows what is wrong with a field's text as long as something is.
void bindFault(TextField& model, NSTextField* label, Subscriptions& kept);
void bindPlaceholder(Placeholder& model, ZVPlaceholderView* view, Subscriptions& kept);
void bindIndicator(ProgressIndicator& model, NSProgressIndicator* view, Subscriptions& kept);
void bindSymbol(SymbolView& model, ZVSymbolView* view, Subscriptions& kept);
void bindBanner(Banner& model, ZVBannerView* view, Subscriptions& kept);
/// `cancelled` is called when the user closes the panel otherwise than by its buttons.
void bindPanel(Panel& model, NSWindow* window, CocoaModalLoop& modal,
               const std::function<void()>& cancelled, Subscriptions& kept);

} // namespace zarvil::cocoa
