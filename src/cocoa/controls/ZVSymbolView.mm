#import "cocoa/controls/ZVSymbolView.h"

#include <initializer_list>

using zarvil::Symbol;

namespace {

// All paths stand on a grid of 24 by 24, y downwards.
constexpr CGFloat grid = 24;
constexpr CGFloat stroke = 1.6;

NSBezierPath* newPath(CGFloat lineWidth) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    [path setLineWidth:lineWidth];
    [path setLineCapStyle:NSRoundLineCapStyle];
    [path setLineJoinStyle:NSRoundLineJoinStyle];
    return path;
}

void addLines(NSBezierPath* path, std::initializer_list<NSPoint> points) {
    bool first = true;
    for (const NSPoint point : points) {
        if (first)
            [path moveToPoint:point];
        else
            [path lineToPoint:point];
        first = false;
    }
}

void addCurve(NSBezierPath* path, NSPoint control1, NSPoint control2, NSPoint end) {
    [path curveToPoint:end controlPoint1:control1 controlPoint2:control2];
}

void addShield(NSBezierPath* path) {
    [path moveToPoint:NSMakePoint(12, 2)];
    addCurve(path, {14.4, 3.7}, {17.2, 4.8}, {20.4, 5});
    [path lineToPoint:NSMakePoint(20.4, 11)];
    addCurve(path, {20.4, 16.2}, {17, 20.2}, {12, 22});
    addCurve(path, {7, 20.2}, {3.6, 16.2}, {3.6, 11});
    [path lineToPoint:NSMakePoint(3.6, 5)];
    addCurve(path, {6.8, 4.8}, {9.6, 3.7}, {12, 2});
    [path closePath];
}

void addWarning(NSBezierPath* path) {
    addLines(path, {{12, 3.2}, {22, 20.4}, {2, 20.4}});
    [path closePath];
    addLines(path, {{12, 9.4}, {12, 14.2}});
    addLines(path, {{12, 17.2}, {12, 17.3}});
}

void addPlug(NSBezierPath* path) {
    addLines(path, {{8.6, 2.4}, {8.6, 7.6}});
    addLines(path, {{15.4, 2.4}, {15.4, 7.6}});
    addLines(path, {{5, 7.8}, {19, 7.8}, {19, 10.6}});
    addCurve(path, {19, 14.6}, {16, 17.2}, {12, 17.2});
    addCurve(path, {8, 17.2}, {5, 14.6}, {5, 10.6});
    [path closePath];
    addLines(path, {{12, 17.2}, {12, 22}});
}

void addEye(NSBezierPath* path) {
    [path moveToPoint:NSMakePoint(1.8, 12)];
    addCurve(path, {5.8, 4.6}, {18.2, 4.6}, {22.2, 12});
    addCurve(path, {18.2, 19.4}, {5.8, 19.4}, {1.8, 12});
    [path appendBezierPathWithOvalInRect:NSMakeRect(9, 9, 6, 6)];
}

void addScript(NSBezierPath* path) {
    addLines(path, {{14.4, 2.6}, {5, 2.6}, {5, 21.4}, {19, 21.4}, {19, 7}, {14.4, 2.6}});
    addLines(path, {{8.2, 11}, {11, 13.6}, {8.2, 16.2}});
    addLines(path, {{12.8, 16.6}, {15.6, 16.6}});
}

void addTick(NSBezierPath* path) {
    [path appendBezierPathWithOvalInRect:NSMakeRect(2.4, 2.4, 19.2, 19.2)];
    addLines(path, {{7.6, 12.4}, {10.8, 15.4}, {16.4, 9.2}});
}

void drawStroked(void (*add)(NSBezierPath*)) {
    NSBezierPath* path = newPath(stroke);
    add(path);
    [path stroke];
}

void drawProductsShield() {
    NSBezierPath* shield = newPath(stroke);
    addShield(shield);
    [[NSColor colorWithCalibratedRed:0.15 green:0.45 blue:0.2 alpha:1] set];
    [shield fill];
    NSBezierPath* tick = newPath(2.4);
    addLines(tick, {{8, 12.2}, {11, 15}, {16, 9.2}});
    [[NSColor whiteColor] set];
    [tick stroke];
}

void drawLock(bool open) {
    NSBezierPath* shackle = newPath(2);
    [shackle moveToPoint:NSMakePoint(8, 11)];
    [shackle lineToPoint:NSMakePoint(8, 7.6)];
    addCurve(shackle, {8, 2.2}, {16, 2.2}, {16, 7.6});
    if (!open)
        [shackle lineToPoint:NSMakePoint(16, 11)];
    [shackle stroke];
    [[NSBezierPath bezierPathWithRoundedRect:NSMakeRect(4.6, 10.4, 14.8, 10.8)
                                     xRadius:1.6
                                     yRadius:1.6] fill];
}

void drawSymbol(Symbol symbol) {
    switch (symbol) {
    case Symbol::None:
        break;
    case Symbol::Shield:
        drawProductsShield();
        break;
    case Symbol::ShieldOff:
        drawStroked([](NSBezierPath* path) {
            addShield(path);
            addLines(path, {{8.6, 12}, {15.4, 12}});
        });
        break;
    case Symbol::ShieldUnknown:
        drawStroked(&addShield);
        break;
    case Symbol::Warning:
        drawStroked(&addWarning);
        break;
    case Symbol::Dot:
        [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(9, 9, 6, 6)] fill];
        break;
    case Symbol::Tick:
        drawStroked(&addTick);
        break;
    case Symbol::Plug:
        drawStroked(&addPlug);
        break;
    case Symbol::Eye:
        drawStroked(&addEye);
        break;
    case Symbol::Script:
        drawStroked(&addScript);
        break;
    case Symbol::Lock:
    case Symbol::LockOpen:
        drawLock(symbol == Symbol::LockOpen);
        break;
    }
}

} // namespace

@implementation ZVSymbolView

- (instancetype)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]))
        _symbol = Symbol::Shield;
    return self;
}

- (instancetype)initWithCoder:(NSCoder*)coder {
    if ((self = [super initWithCoder:coder]))
        _symbol = Symbol::Shield;
    return self;
}

- (void)showSymbol:(Symbol)symbol {
    _symbol = symbol;
    [self setNeedsDisplay:YES];
}

- (BOOL)isFlipped {
    return YES;
}

// Clicks are for what it stands beside.
- (NSView*)hitTest:(NSPoint)point {
    (void)point;
    return nil;
}

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
    const NSSize size = [self bounds].size;
    const CGFloat side = MIN(size.width, size.height);
    [NSGraphicsContext saveGraphicsState];
    NSAffineTransform* toGrid = [NSAffineTransform transform];
    [toGrid translateXBy:(size.width - side) / 2 yBy:(size.height - side) / 2];
    [toGrid scaleBy:side / grid];
    [toGrid concat];
    [[NSColor controlTextColor] set];
    drawSymbol(_symbol);
    [NSGraphicsContext restoreGraphicsState];
}

@end
