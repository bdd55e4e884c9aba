#import "cocoa/support/Guard.h"

NSException* ZVCatch(void (*body)(void*), void* context) {
    NSException* caught = nil;
    @try {
        body(context);
    } @catch (NSException* raised) {
        caught = raised;
    }
    return caught;
}
