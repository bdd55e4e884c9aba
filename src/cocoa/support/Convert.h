#pragma once

#import <AppKit/AppKit.h>

#include "interface/AttributedString.h"
#include "interface/Color.h"
#include "interface/Geometry.h"

#include <string>
#include <string_view>

/// The core's basic values and AppKit's. Objects that are handed out are autoreleased.
namespace zarvil::cocoa {

/// Text that is no UTF-8 is read as Latin-1, byte by byte; never nil.
[[nodiscard]] NSString* toCocoa(std::string_view text);
/// Nil gives empty text.
[[nodiscard]] std::string fromCocoa(NSString* text);

[[nodiscard]] NSColor* toCocoa(const Color& color);
/// A colour that has no components, as a pattern, gives black.
[[nodiscard]] Color colorFromCocoa(NSColor* color);

[[nodiscard]] inline NSRect toCocoa(const Rect& rect) {
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}
[[nodiscard]] inline Rect fromCocoa(const NSRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}
[[nodiscard]] inline NSPoint toCocoa(const Point& point) { return NSMakePoint(point.x, point.y); }
[[nodiscard]] inline Point fromCocoa(const NSPoint& point) { return {point.x, point.y}; }

[[nodiscard]] NSTextAlignment toCocoa(TextAlignment alignment);
/// Text with the attributes that are set; a link becomes a URL.
[[nodiscard]] NSAttributedString* toCocoa(const AttributedString& text);

} // namespace zarvil::cocoa
