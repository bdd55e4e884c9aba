#import "cocoa/adapters/Scripts.h"

#import "cocoa/support/Call.h"

#include "posix/PosixScriptRunner.h"

namespace zarvil::cocoa {

std::unique_ptr<ScriptRunner> makeScriptRunner(const StringTable& strings) {
    return std::make_unique<posix::PosixScriptRunner>(strings, callOnMainThread);
}

} // namespace zarvil::cocoa
