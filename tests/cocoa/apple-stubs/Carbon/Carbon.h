#pragma once

// Just what src/cocoa/apple calls, written down from Apple's documentation. It proves spelling
// against these declarations, not against Apple's headers.

typedef double EventTime;
typedef int OSStatus;
typedef unsigned int OSType;
typedef struct HISize {
    double width;
    double height;
} HISize;
enum { noErr = 0 };
enum { kMouseParamsSticky = 'stic' };

extern "C" OSStatus HIMouseTrackingGetParameters(OSType selector, EventTime* outTime,
                                                 HISize* outDistance);
