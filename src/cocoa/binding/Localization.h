#pragma once

#import <AppKit/AppKit.h>

namespace zarvil {
class StringTable;
}

namespace zarvil::cocoa {

/// Gives a layout's texts, those of tool tips and placeholders included, in the user's language.
/// To be called before models take them over.
void localizeTexts(NSView* view, const StringTable& strings);

} // namespace zarvil::cocoa
