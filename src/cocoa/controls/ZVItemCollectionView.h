#pragma once

#import <AppKit/AppKit.h>

#include "interface/CollectionView.h"

#include <memory>

namespace zarvil::cocoa {
struct ShownRows;
}

/// A row's view controller, which shows one model after another.
@interface ZVRowItem : NSCollectionViewItem
/// Shows a model, of which it takes a share; null shows none.
- (void)showRow:(const std::shared_ptr<zarvil::CollectionViewItem>&)row;
/// The model that is shown looks different.
- (void)rowDidChange;
@end

/// Shows the rows of the core's collection view, one below the other in one height, and makes items
/// only for those in sight: it keeps no content of its own.
@interface ZVItemCollectionView : NSCollectionView {
@public
    std::unique_ptr<zarvil::cocoa::ShownRows> _rows;
}
/// Brings the rows up to date, which else happens soon after a change.
- (void)layOutRows;

// For classes below.
- (CGFloat)rowHeight;
/// An item with its view loaded, owned by the caller.
- (ZVRowItem*)newRowItem;
@end

namespace zarvil::cocoa {

/// Has the view show a model, which is not owned; nullptr shows no rows.
void showRows(ZVItemCollectionView* view, CollectionView* model);

} // namespace zarvil::cocoa
