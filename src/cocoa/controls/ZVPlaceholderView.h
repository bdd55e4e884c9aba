#pragma once

#import "cocoa/controls/ZVMadeView.h"

#include "interface/Placeholder.h"

@class ZVSymbolView;

/// A symbol, a title and a few words below it, in the middle of the view.
@interface ZVPlaceholderView : ZVMadeView {
    ZVSymbolView* _symbol;
    NSTextField* _title;
    NSTextField* _words;
}
- (void)showText:(const zarvil::Placeholder::Text&)text;
@end
