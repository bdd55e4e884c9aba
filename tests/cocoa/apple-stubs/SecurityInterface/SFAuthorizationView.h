#pragma once

// Just what src/cocoa/apple calls, written down from Apple's documentation. It proves spelling
// against these declarations, not against Apple's headers.

#import <AppKit/AppKit.h>

typedef struct {
    const char* name;
    size_t valueLength;
    void* value;
    unsigned int flags;
} AuthorizationItem;
typedef struct {
    unsigned int count;
    AuthorizationItem* items;
} AuthorizationRights;

typedef enum {
    SFAuthorizationStartupState,
    SFAuthorizationViewLockedState,
    SFAuthorizationViewInProgressState,
    SFAuthorizationViewUnlockedState
} SFAuthorizationViewState;

@interface SFAuthorizationView : NSView
- (void)setAuthorizationRights:(const AuthorizationRights*)authorizationRights;
- (SFAuthorizationViewState)authorizationState;
- (void)setDelegate:(id)delegate;
- (BOOL)updateStatus:(id)inSender;
- (BOOL)authorize:(id)inSender;
- (BOOL)deauthorize:(id)inSender;
@end
