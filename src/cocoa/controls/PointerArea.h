#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace zarvil::cocoa {

/// A part of a view over which the view hears `mouseEntered:` and `mouseExited:`. It lasts as long
/// as the view, unless it is removed.
class PointerArea {
public:
    /// `options` are bits of `trackingOption`; the delegate, which may be nil, is retained and
    /// travels with the events. The view is not owned.
    PointerArea(NSView* view, NSRect rect, unsigned options, id delegate);
    PointerArea(const PointerArea&) = delete;
    PointerArea& operator=(const PointerArea&) = delete;
    ~PointerArea();

    /// To be called when the view came into a window, out of one, or changed its place.
    void viewDidMove();
    void remove();

    /// Whether an event of an area with these options counts now.
    [[nodiscard]] static bool isActive(NSView* view, unsigned options);
    /// What came with the area of a `mouseEntered:` or `mouseExited:`; nil without an area.
    [[nodiscard]] static id delegateOf(NSEvent* event);

private:
    struct Tracked;
    std::unique_ptr<Tracked> tracked_;
};

} // namespace zarvil::cocoa
