#import "cocoa/adapters/Scripts.h"

#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

namespace zarvil::cocoa {

namespace {

/// A script that has ended before it could be asked anything.
class EndedRun final : public ScriptRun {
public:
    [[nodiscard]] bool canStop() const override { return false; }
    void stop() override {}
};

/// AppleScript runs on the main thread alone and can only be waited for.
class AppleScriptRunner final : public ScriptRunner {
public:
    [[nodiscard]] std::unique_ptr<ScriptRun> start(std::string_view source, Ended ended) override {
        const auto script =
            Ref<NSAppleScript>::adopt([[NSAppleScript alloc] initWithSource:toCocoa(source)]);
        NSDictionary* error = nil;
        if ([script.get() executeAndReturnError:&error])
            ended(std::nullopt);
        else
            ended(ScriptError{[[error objectForKey:NSAppleScriptErrorNumber] longLongValue],
                              fromCocoa([error objectForKey:NSAppleScriptErrorMessage])});
        return std::make_unique<EndedRun>();
    }
};

} // namespace

std::unique_ptr<ScriptRunner> makeScriptRunner(const StringTable& /*strings*/) {
    return std::make_unique<AppleScriptRunner>();
}

} // namespace zarvil::cocoa
