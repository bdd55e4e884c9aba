#import "cocoa/controls/KXButtonCell.h"

#import "cocoa/adapters/CocoaPorts.h"
#import "cocoa/canvas/Drawing.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#include "controls/KXButtonCell.h"
#include "interface/Button.h"
#include "posix/PosixClock.h"

#include <new>

namespace zarvil::cocoa {

namespace {

std::unique_ptr<ButtonCell> newSwitch() {
    static const posix::PosixClock clock;
    return std::make_unique<zarvil::KXButtonCell>(stickyClick(), clock);
}

} // namespace

struct SwitchParts {
    Button own{ButtonKind::Toggle, newSwitch()};
    Button* shown = &own;
    Ref<NSImage> onImage;
    Ref<NSImage> offImage;
    int stateBefore = buttonState::off;
    bool pressed = false;
    bool leftAlone = false;

    [[nodiscard]] zarvil::KXButtonCell& cell() const {
        return *shown->cellAs<zarvil::KXButtonCell>();
    }
};

namespace {

/// What layouts set: of `from`'s values those that `to` has not got from elsewhere.
void carryOver(const zarvil::KXButtonCell& from, zarvil::KXButtonCell& to) {
    if (to.onTitle().empty())
        to.setOnTitle(from.onTitle());
    if (to.offTitle().empty())
        to.setOffTitle(from.offTitle());
    to.setShowStateExtras(to.showStateExtras() || from.showStateExtras());
    if (!to.fontColor())
        to.setFontColor(from.fontColor());
    if (!to.backgroundColor())
        to.setBackgroundColor(from.backgroundColor());
}

std::optional<Color> optionalColor(NSColor* color) {
    return color ? std::optional(colorFromCocoa(color)) : std::nullopt;
}

NSColor* optionalColor(const std::optional<Color>& color) { return color ? toCocoa(*color) : nil; }

} // namespace

} // namespace zarvil::cocoa

using zarvil::cocoa::fromCocoa;
using zarvil::cocoa::toCocoa;

@implementation KXButtonCell

+ (BOOL)prefersTrackingUntilMouseUp {
    return YES;
}

+ (NSFocusRingType)defaultFocusRingType {
    return static_cast<NSFocusRingType>(zarvil::KXButtonCell::defaultFocusRingType());
}

- (void)setup {
    _parts = std::make_unique<zarvil::cocoa::SwitchParts>();
    [self setFocusRingType:[[self class] defaultFocusRingType]];
    [self setButtonType:NSOnOffButton];
    _parts->own.setState(static_cast<int>([super state]));
    _parts->own.setEnabled([self isEnabled]);
}

- (instancetype)init {
    return [self initTextCell:@""];
}

- (instancetype)initTextCell:(NSString*)text {
    if ((self = [super initTextCell:text]))
        [self setup];
    return self;
}

- (instancetype)initImageCell:(NSImage*)image {
    if ((self = [super initImageCell:image]))
        [self setup];
    return self;
}

- (instancetype)initWithCoder:(NSCoder*)coder {
    if ((self = [super initWithCoder:coder]))
        [self setup];
    return self;
}

// The base makes a bitwise copy, whose parts are this cell's.
- (id)copyWithZone:(NSZone*)zone {
    KXButtonCell* copy = [super copyWithZone:zone];
    new (&copy->_parts) std::unique_ptr<zarvil::cocoa::SwitchParts>();
    [copy setup];
    zarvil::cocoa::carryOver(_parts->cell(), copy->_parts->cell());
    [copy setState:[self state]];
    [copy setOnImage:[self onImage]];
    [copy setOffImage:[self offImage]];
    return copy;
}

- (void)showButton:(zarvil::Button*)model {
    zarvil::Button* shown = model ? model : &_parts->own;
    if (!shown->cellAs<zarvil::KXButtonCell>())
        return;
    zarvil::cocoa::carryOver(_parts->cell(), *shown->cellAs<zarvil::KXButtonCell>());
    _parts->shown = shown;
    [super setState:shown->state()];
}

- (BOOL)pressLeftStateAlone {
    return _parts->leftAlone;
}

// State. The base cell is asked for it too while it still makes this object.
- (NSInteger)state {
    return _parts ? _parts->shown->state() : [super state];
}

- (void)setState:(NSInteger)state {
    [super setState:state];
    if (_parts)
        _parts->shown->setState(static_cast<int>([super state]));
}

- (void)setNextState {
    [super setNextState];
    _parts->leftAlone =
        std::exchange(_parts->pressed, false) && _parts->shown->state() == _parts->stateBefore;
}

- (void)setEnabled:(BOOL)enabled {
    [super setEnabled:enabled];
    if (_parts)
        _parts->cell().setEnabled(enabled);
}

// Properties.
- (NSString*)onTitle {
    return toCocoa(_parts->cell().onTitle());
}

- (void)setOnTitle:(NSString*)title {
    _parts->cell().setOnTitle(fromCocoa(title));
}

- (NSString*)offTitle {
    return toCocoa(_parts->cell().offTitle());
}

- (void)setOffTitle:(NSString*)title {
    _parts->cell().setOffTitle(fromCocoa(title));
}

- (BOOL)showStateExtras {
    return _parts->cell().showStateExtras();
}

- (void)setShowStateExtras:(BOOL)show {
    _parts->cell().setShowStateExtras(show);
}

- (NSColor*)fontColor {
    return zarvil::cocoa::optionalColor(_parts->cell().fontColor());
}

- (void)setFontColor:(NSColor*)color {
    _parts->cell().setFontColor(zarvil::cocoa::optionalColor(color));
}

// The base cell has a background of its own, which this one does not draw.
- (NSColor*)backgroundColor {
    return _parts ? zarvil::cocoa::optionalColor(_parts->cell().backgroundColor()) : nil;
}

- (void)setBackgroundColor:(NSColor*)color {
    if (_parts)
        _parts->cell().setBackgroundColor(zarvil::cocoa::optionalColor(color));
}

- (NSImage*)onImage {
    return _parts->onImage.get();
}

- (void)setOnImage:(NSImage*)image {
    _parts->onImage = zarvil::cocoa::Ref<NSImage>(image);
}

- (NSImage*)offImage {
    return _parts->offImage.get();
}

- (void)setOffImage:(NSImage*)image {
    _parts->offImage = zarvil::cocoa::Ref<NSImage>(image);
}

// Mouse.
- (zarvil::View*)modelOf:(NSView*)view {
    if (!view)
        return nullptr;
    _parts->shown->setFrame(fromCocoa([view frame]));
    return _parts->shown;
}

- (NSUInteger)hitTestForEvent:(NSEvent*)event inRect:(NSRect)frame ofView:(NSView*)view {
    const NSPoint point = [view convertPoint:[event locationInWindow] fromView:nil];
    return _parts->cell().hitTestForEvent(fromCocoa(point), fromCocoa(frame), nullptr);
}

- (BOOL)startTrackingAt:(NSPoint)point inView:(NSView*)view {
    return _parts->cell().startTrackingAt(fromCocoa(point), [self modelOf:view]);
}

- (BOOL)continueTracking:(NSPoint)last at:(NSPoint)point inView:(NSView*)view {
    const BOOL goesOn = _parts->cell().continueTracking(fromCocoa(last), fromCocoa(point), nullptr);
    if ([view respondsToSelector:@selector(drawCell:)])
        [view performSelector:@selector(drawCell:) withObject:self];
    // Drawn over what was there, so that what lies around the switch must be drawn anew as well.
    [view setNeedsDisplay:YES];
    return goesOn;
}

- (void)stopTracking:(NSPoint)last
                  at:(NSPoint)point
              inView:(NSView*)view
           mouseIsUp:(BOOL)mouseIsUp {
    _parts->stateBefore = _parts->shown->state();
    _parts->pressed = mouseIsUp;
    _parts->cell().stopTracking(fromCocoa(last), fromCocoa(point), [self modelOf:view], mouseIsUp);
    // The base advances the state that it keeps itself.
    [super setState:_parts->shown->state()];
    [view setNeedsDisplay:YES];
}

// Drawing.
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    const zarvil::KXButtonCell& cell = _parts->cell();
    zarvil::cocoa::drawWithCanvas(view, frame, [&](zarvil::Canvas& canvas) {
        cell.drawWithFrame(fromCocoa(frame), nullptr, canvas);
    });
}

@end
