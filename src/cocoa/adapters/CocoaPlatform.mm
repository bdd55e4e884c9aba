#import "cocoa/adapters/CocoaPlatform.h"

#import "cocoa/adapters/Scripts.h"

#include <utility>

namespace zarvil::cocoa {

CocoaPlatform::CocoaPlatform(std::string root)
    : scripts_(makeScriptRunner(strings_)),
      platform_{.handlers = handlers_,
                .messages = messages_,
                .timers = timers_,
                .clock = clock_,
                .workspace = workspace_,
                .files = files_,
                .defaults = defaults_,
                .errors = alerts_,
                .scripts = *scripts_,
                .authorization = authorization_,
                .strings = strings_,
                .stickyClick = stickyClick(),
                .modal = modal_,
                .processes = processes_,
                .root = std::move(root),
                .decimalSeparator = decimalSeparator()} {}

} // namespace zarvil::cocoa
