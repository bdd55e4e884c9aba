#import "cocoa/controls/ZVTabView.h"

// macOS's own does so, as the user's settings of the keyboard have it.
@implementation ZVTabView
@end
