#import "cocoa/messages/DistributedMessageCenter.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Pool.h"

#include "agent/CommandLine.h"

#include <QCoreApplication>

#include <optional>

namespace {

/// How late the agent's timers and the operator's commands may be. Messages are not: they wake the
/// system's run loop, which no descriptor of Qt's can.
constexpr NSTimeInterval turnOfQt = 0.05; // seconds

} // namespace

/// The stand-in agent over distributed notifications.
int main(int argc, char** argv) {
    using namespace zarvil;
    const cocoa::Pool pool;
    const QCoreApplication application(argc, argv);
    const agent::ApplicationOptions options = agent::readCommandLine(application);
    cocoa::DistributedMessageCenter messages;
    std::optional<int> status;
    agent::AgentApplication agent(options, messages, [&status](int code) { status = code; });
    agent.ready();
    [NSTimer scheduledTimerWithTimeInterval:turnOfQt
                                     target:[ZVCall callWithFunction:[] {
                                         QCoreApplication::processEvents();
                                     }]
                                   selector:@selector(run:)
                                   userInfo:nil
                                    repeats:YES];
    while (!status) {
        const cocoa::Pool turn;
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                 beforeDate:[NSDate dateWithTimeIntervalSinceNow:turnOfQt]];
    }
    return *status;
}
