#pragma once

// What macOS's Foundation and AppKit have beside GNUstep's: just what src/cocoa/apple calls,
// written down from Apple's documentation. It proves spelling against these declarations, not
// against Apple's headers.

#import <AppKit/AppKit.h>

@interface NSRunningApplication (AppleStub)
- (NSString*)bundleIdentifier;
- (pid_t)processIdentifier;
@end

@interface NSWorkspace (AppleStub)
- (NSArray*)runningApplications;
@end

@interface NSView (AppleStub)
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)removeTrackingArea:(NSTrackingArea*)trackingArea;
- (instancetype)animator;
@end

@interface NSView (AppleAccessibilityStub)
- (void)setAccessibilityHelp:(NSString*)help;
@end

extern NSString* const NSAccessibilityAnnouncementRequestedNotification;
extern NSString* const NSAccessibilityAnnouncementKey;
extern "C" void NSAccessibilityPostNotificationWithUserInfo(id element, NSString* notification,
                                                            NSDictionary* userInfo);

@interface NSWindow (AppleStub)
- (CGFloat)backingScaleFactor;
@end

@interface NSEvent (AppleStub)
- (NSTrackingArea*)trackingArea;
@end

extern NSString* const NSAppleScriptErrorNumber;
extern NSString* const NSAppleScriptErrorMessage;

@class NSAppleEventDescriptor;

@interface NSAppleScript (AppleStub)
- (instancetype)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)errorInfo;
@end
