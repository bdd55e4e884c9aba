#import "cocoa/controls/ZVCollectionNoteView.h"

#import "cocoa/canvas/Drawing.h"
#import "cocoa/support/Convert.h"

#include "controls/ZVCollectionNoteView.h"

@implementation ZVCollectionNoteView

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
    zarvil::ZVCollectionNoteView card;
    card.setFrame(zarvil::cocoa::fromCocoa([self bounds]));
    zarvil::cocoa::drawWithCanvas(self, [self bounds],
                                  [&card](zarvil::Canvas& canvas) { card.drawRect(canvas); });
}

@end
