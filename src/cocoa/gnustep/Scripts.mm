#import "cocoa/adapters/Scripts.h"

#import "cocoa/support/Call.h"

#include "posix/PosixScriptRunner.h"

namespace zarvil::cocoa {

std::unique_ptr<ScriptRunner> makeScriptRunner() {
    return std::make_unique<posix::PosixScriptRunner>(callOnMainThread);
}

} // namespace zarvil::cocoa
