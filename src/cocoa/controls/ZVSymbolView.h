#pragma once

#import <AppKit/AppKit.h>

#include "interface/Symbol.h"

/// One of the pane's symbols, as large as the view. Until it is told another one it shows the
/// product's own.
@interface ZVSymbolView : NSView {
    zarvil::Symbol _symbol;
}
- (void)showSymbol:(zarvil::Symbol)symbol;
@end
