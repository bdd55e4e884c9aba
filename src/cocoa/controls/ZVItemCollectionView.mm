#import "cocoa/controls/ZVItemCollectionView.h"

#import "cocoa/binding/Layout.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Ref.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

using zarvil::cocoa::Ref;

namespace zarvil::cocoa {

struct ShownRows {
    explicit ShownRows(CollectionView& shown) : model(shown) {}
    ShownRows(const ShownRows&) = delete;
    ShownRows& operator=(const ShownRows&) = delete;
    ~ShownRows() {
        if (scrolled.get())
            [[NSNotificationCenter defaultCenter] removeObserver:scrolled.get()];
        for (const auto& [serial, item] : items)
            retire(item);
    }

    static void retire(const Ref<ZVRowItem>& item) {
        [item.get() showRow:nullptr];
        leaveKeyViews([item.get() view]);
        [[item.get() view] removeFromSuperview];
    }

    CollectionView& model;
    std::map<RecordSerial, Ref<ZVRowItem>> items; ///< of the rows in sight
    std::vector<Ref<ZVRowItem>> spares;
    Ref<ZVCall> scrolled;
    Subscription changes;
    bool layoutPending = false;
    std::shared_ptr<char> lifetime = std::make_shared<char>();
};

} // namespace zarvil::cocoa

@implementation ZVRowItem

- (void)showRow:(const std::shared_ptr<zarvil::CollectionViewItem>&)row {
    (void)row;
}

- (void)rowDidChange {
}

@end

@implementation ZVItemCollectionView

- (ZVRowItem*)itemOfRow:(std::size_t)row {
    Ref<ZVRowItem>& item = _rows->items[_rows->model.serialAtRow(row)];
    if (item.get())
        return item.get();
    if (_rows->spares.empty()) {
        item = Ref<ZVRowItem>::adopt([self newRowItem]);
    } else {
        item = std::move(_rows->spares.back());
        _rows->spares.pop_back();
    }
    [self addSubview:[item.get() view]];
    [item.get() showRow:_rows->model.itemAtRow(row)];
    return item.get();
}

- (void)showRowsFrom:(std::size_t)first to:(std::size_t)end {
    auto former = std::exchange(_rows->items, {});
    for (std::size_t row = first; row < end; ++row) {
        const auto kept = former.find(_rows->model.serialAtRow(row));
        if (kept == former.end())
            continue;
        _rows->items.insert(former.extract(kept));
    }
    for (const auto& [serial, item] : former) {
        zarvil::cocoa::ShownRows::retire(item);
        _rows->spares.push_back(item);
    }
    const CGFloat width = [self frame].size.width;
    for (std::size_t row = first; row < end; ++row) {
        ZVRowItem* item = [self itemOfRow:row];
        const NSRect frame =
            NSMakeRect(0, static_cast<CGFloat>(row) * [self rowHeight], width, [self rowHeight]);
        if (!NSEqualRects([[item view] frame], frame))
            [[item view] setFrame:frame];
    }
    [self setNeedsDisplay:YES];
}

- (void)layOutRows {
    if (!_rows)
        return;
    _rows->layoutPending = false;
    const NSView* clip = [self superview];
    const CGFloat height = [self rowHeight];
    const std::size_t count = _rows->model.rowCount();
    const NSSize room = clip ? [clip bounds].size : [self frame].size;
    const NSSize size =
        NSMakeSize(room.width, std::max(room.height, height * static_cast<CGFloat>(count)));
    if (!NSEqualSizes(size, [self frame].size))
        [self setFrameSize:size];
    const NSRect sight = clip ? [clip bounds] : [self bounds];
    const auto rowAt = [=](CGFloat y) {
        return std::min(count, static_cast<std::size_t>(std::max<CGFloat>(0, y) / height));
    };
    [self showRowsFrom:rowAt(NSMinY(sight)) to:std::min(count, rowAt(NSMaxY(sight)) + 1)];
    zarvil::cocoa::joinKeyViews(self);
}

- (CGFloat)rowHeight {
    return 1;
}

- (ZVRowItem*)newRowItem {
    return [[ZVRowItem alloc] init];
}

// The base lays out and draws a content of its own, which this one has not.
- (void)tile {
}

- (void)resizeSubviewsWithOldSize:(NSSize)size {
    (void)size;
    [self layOutRows];
}

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
}

- (BOOL)isFlipped {
    return YES;
}

// The keyboard is for what the rows hold.

- (BOOL)acceptsFirstResponder {
    return NO;
}

/// To the same control of another row.
- (BOOL)moveKeyboardBy:(int)step {
    NSControl* from = static_cast<NSControl*>([[self window] firstResponder]);
    if (![from isKindOfClass:[NSControl class]] || ![from isDescendantOf:self])
        return NO;
    const NSRect frame = [self convertRect:[from bounds] fromView:from];
    const int row = static_cast<int>(NSMidY(frame) / [self rowHeight]) + step;
    if (row < 0 || static_cast<std::size_t>(row) >= _rows->model.rowCount())
        return YES;
    [self scrollRectToVisible:NSMakeRect(0, row * [self rowHeight], 1, [self rowHeight])];
    NSArray* controls = [[[self itemOfRow:static_cast<std::size_t>(row)] view] subviews];
    for (NSUInteger index = 0; index < [controls count]; ++index) {
        NSControl* control = [controls objectAtIndex:index];
        if ([control isKindOfClass:[NSControl class]] && [control action] == [from action] &&
            [control acceptsFirstResponder])
            return [[self window] makeFirstResponder:control];
    }
    return YES;
}

/// What no control of a row has taken. The base would keep the Tab key to itself.
- (void)keyDown:(NSEvent*)event {
    const unichar key =
        [[event characters] length] > 0 ? [[event characters] characterAtIndex:0] : 0;
    const int step = key == NSDownArrowFunctionKey ? 1 : key == NSUpArrowFunctionKey ? -1 : 0;
    if (!_rows || step == 0 || ![self moveKeyboardBy:step])
        [[self nextResponder] keyDown:event];
}

@end

namespace zarvil::cocoa {

namespace {

/// Many changes of one message are laid out once.
void layOutSoon(ZVItemCollectionView* view) {
    if (std::exchange(view->_rows->layoutPending, true))
        return;
    const std::weak_ptr<char> alive = view->_rows->lifetime;
    callOnMainThread([=] {
        if (!alive.expired())
            [view layOutRows];
    });
}

void rowsDidChange(ZVItemCollectionView* view, const RowChange& change) {
    if (change.phase == RowChange::Phase::Before)
        return;
    if (change.kind != RowChange::Kind::Changed) {
        layOutSoon(view);
        return;
    }
    const ShownRows& rows = *view->_rows;
    const auto shown = rows.items.find(rows.model.serialAtRow(change.row));
    if (shown != rows.items.end())
        [shown->second.get() rowDidChange];
}

void followScrolling(ZVItemCollectionView* view, ShownRows& rows) {
    NSView* clip = [view superview];
    if (!clip)
        return;
    rows.scrolled = Ref<ZVCall>([ZVCall callWithFunction:[view] { [view layOutRows]; }]);
    [clip setPostsBoundsChangedNotifications:YES];
    [clip setPostsFrameChangedNotifications:YES];
    for (NSString* name : {NSViewBoundsDidChangeNotification, NSViewFrameDidChangeNotification})
        [[NSNotificationCenter defaultCenter] addObserver:rows.scrolled.get()
                                                 selector:@selector(run:)
                                                     name:name
                                                   object:clip];
}

} // namespace

void showRows(ZVItemCollectionView* view, CollectionView* model) {
    view->_rows.reset();
    if (!model)
        return;
    view->_rows = std::make_unique<ShownRows>(*model);
    view->_rows->changes =
        model->observeRows([view](const RowChange& change) { rowsDidChange(view, change); });
    followScrolling(view, *view->_rows);
    [view layOutRows];
}

} // namespace zarvil::cocoa
