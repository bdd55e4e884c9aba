#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace zarvil {
class Button;
namespace cocoa {
struct SwitchParts;
}
} // namespace zarvil

/// The cell of an on/off switch. It shows a model, its own at first, another's from `showButton:`
/// on, and hands the mouse on to it; the base cell's mouse loop advances the state on release.
@interface KXButtonCell : NSButtonCell {
    std::unique_ptr<zarvil::cocoa::SwitchParts> _parts;
}
/// Shows a model whose cell is a switch, and gives it the titles and colours that the layout set
/// on this cell. The model is not owned; nullptr goes back to the cell's own.
- (void)showButton:(zarvil::Button*)model;
/// Whether the press that has just ended left the state as it was, so that nothing is to be sent.
- (BOOL)pressLeftStateAlone;

@property(retain) NSString* onTitle;
@property(retain) NSString* offTitle;
/// Whether the two titles are drawn beside the knob.
@property BOOL showStateExtras;
/// Colour of the titles; white when nil.
@property(retain) NSColor* fontColor;
/// Fill under the track's gradient; nothing when nil.
@property(retain) NSColor* backgroundColor;
/// Kept and never drawn, on purpose: layouts set them.
@property(retain) NSImage* onImage;
@property(retain) NSImage* offImage;
@end
