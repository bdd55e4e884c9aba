#import "cocoa/controls/ZVMadeView.h"

@implementation ZVMadeView

- (void)setup {
}

- (instancetype)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]))
        [self setup];
    return self;
}

- (instancetype)initWithCoder:(NSCoder*)coder {
    if ((self = [super initWithCoder:coder]))
        [self setup];
    return self;
}

@end
