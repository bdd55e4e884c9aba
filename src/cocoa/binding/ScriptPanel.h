#pragma once

#import <AppKit/AppKit.h>

#include "scripts/ScriptProgress.h"

namespace zarvil::cocoa {

/// Shows what runs in a small panel, and drops what the user does with the pane while a script
/// runs: clicks and keys that had to wait would do later what nobody expects any more. The
/// progress must outlive what is returned.
[[nodiscard]] Subscription showScriptProgress(ScriptProgress& progress, NSView* pane);

} // namespace zarvil::cocoa
