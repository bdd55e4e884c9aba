#import "cocoa/adapters/Scripts.h"

#import "cocoa/support/Call.h"

#include "posix/PosixScriptRunner.h"

#include <csignal>

namespace zarvil::cocoa {

namespace {

/// GNUstep's tasks have every child reaped whose end it is told of, also those that are not its
/// own. While this lives it is not told.
class ChildrenKept {
public:
    ChildrenKept() {
        struct sigaction standard {};
        standard.sa_handler = SIG_DFL;
        ::sigaction(SIGCHLD, &standard, &former_);
    }
    ChildrenKept(const ChildrenKept&) = delete;
    ChildrenKept& operator=(const ChildrenKept&) = delete;
    ~ChildrenKept() {
        ::sigaction(SIGCHLD, &former_, nullptr);
        // It looks for its own that have ended meanwhile.
        static_cast<void>(std::raise(SIGCHLD));
    }

private:
    struct sigaction former_ {};
};

class ScriptRunnerBesideTasks final : public ScriptRunner {
public:
    explicit ScriptRunnerBesideTasks(const StringTable& strings)
        : runner_(strings, callOnMainThread) {}

    [[nodiscard]] std::unique_ptr<ScriptRun> start(std::string_view source, Ended ended) override {
        const auto kept = std::make_shared<ChildrenKept>();
        return runner_.start(source, [=](const std::optional<ScriptError>& error) {
            static_cast<void>(kept);
            ended(error);
        });
    }

private:
    posix::PosixScriptRunner runner_;
};

} // namespace

std::unique_ptr<ScriptRunner> makeScriptRunner(const StringTable& strings) {
    return std::make_unique<ScriptRunnerBesideTasks>(strings);
}

} // namespace zarvil::cocoa
