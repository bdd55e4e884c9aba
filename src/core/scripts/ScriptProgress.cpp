#include "scripts/ScriptProgress.h"

#include <utility>

namespace zarvil {

namespace {

constexpr double windowDelay = 1.0; // seconds

} // namespace

void ScriptProgress::run(std::string_view title, std::string_view source, Ended ended) {
    ended_ = std::move(ended);
    hold_ = platform_.handlers.hold();
    text_.set(platform_.strings.localizedString("The script “%1” is running.", {title}));
    stopping_.set(false);
    running_.set(true);
    // Not by way of the handlers, which are held.
    windowTimer_ = platform_.timers.schedule(windowDelay, Repetition::Once,
                                             [this] { windowShown_.set(true); });
    auto run = platform_.scripts.start(source, [this](const auto& error) { runEnded(error); });
    if (running_.get())
        run_ = std::move(run);
}

std::string ScriptProgress::stopTitle() const { return platform_.strings.localizedString("Stop"); }

void ScriptProgress::stop() {
    if (!canStop() || stopping_.get())
        return;
    stopping_.set(true);
    run_->stop();
}

void ScriptProgress::runEnded(const std::optional<ScriptError>& error) {
    windowTimer_.reset();
    run_.reset();
    windowShown_.set(false);
    running_.set(false);
    const bool failed = error && !stopping_.get();
    if (const auto tell = std::exchange(ended_, nullptr))
        tell(failed ? &*error : nullptr);
    if (failed)
        platform_.errors.presentError(
            {std::string(cocoaErrorDomain), error->number, error->message});
    // Last: what was held follows in here.
    std::exchange(hold_, {}).cancel();
}

} // namespace zarvil
