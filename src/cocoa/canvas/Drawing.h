#pragma once

#import <AppKit/AppKit.h>

#include "platform/Canvas.h"

#include <functional>

namespace zarvil::cocoa {

/// Draws a view's content with the core's canvas, in the view's coordinates: `rect` is what it
/// covers. To be called while the view is drawn.
void drawWithCanvas(NSView* view, NSRect rect, const std::function<void(Canvas&)>& drawing);

/// A picture of a core image, at the pixel density of the main screen; autoreleased. Nil for one
/// that `imageRenderer` did not make.
[[nodiscard]] NSImage* toCocoa(const Image& image);

/// Makes the core's images. Lives as long as the process.
[[nodiscard]] ImageRenderer& imageRenderer();

} // namespace zarvil::cocoa
