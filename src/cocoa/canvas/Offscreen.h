#pragma once

#import <AppKit/AppKit.h>

#include <functional>

namespace zarvil::cocoa {

/// What a drawing leaves on white pixels, four samples of eight bits each, autoreleased. A point of
/// the drawing is a pixel, its y grows upwards. Nil when the system cannot draw off the screen.
[[nodiscard]] NSBitmapImageRep* drawnOnWhite(int width, int height,
                                             const std::function<void()>& drawing);

/// How dense the pixels are that a view is drawn on; 1 for a view without a window.
[[nodiscard]] double pixelsPerPoint(NSView* view);

} // namespace zarvil::cocoa
