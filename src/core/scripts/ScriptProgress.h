#pragma once

#include "interface/Property.h"
#include "pane/Platform.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// The script that the user runs, one at a time, and what is shown of it. While it runs the pane
/// is blocked: no handler begins, and a front end takes no input but that of the window below.
class ScriptProgress {
public:
    /// The ports must outlive this.
    explicit ScriptProgress(Platform& platform) : platform_(platform) {}
    ScriptProgress(const ScriptProgress&) = delete;
    ScriptProgress& operator=(const ScriptProgress&) = delete;

    /// Told of the end; null for a good one or a script that was stopped.
    using Ended = std::function<void(const ScriptError*)>;

    /// To be called within a handler. A failure is presented; one of a stopped script is not.
    void run(std::string_view title, std::string_view source, Ended ended);

    // State.
    [[nodiscard]] const Property<bool>& runningProperty() const { return running_; }
    /// A small window that says which script runs; a short run shows none.
    [[nodiscard]] const Property<bool>& windowShownProperty() const { return windowShown_; }
    [[nodiscard]] const Property<std::string>& textProperty() const { return text_; }
    /// Whether the window has a Stop button, and whether that can be pressed (again).
    [[nodiscard]] bool canStop() const { return run_ && run_->canStop(); }
    [[nodiscard]] const Property<bool>& stoppingProperty() const { return stopping_; }
    [[nodiscard]] std::string stopTitle() const;

    // Events in.
    void stop();

private:
    void runEnded(const std::optional<ScriptError>& error);

    Platform& platform_;
    Subscription hold_;
    std::unique_ptr<Timer> windowTimer_;
    std::unique_ptr<ScriptRun> run_;
    Ended ended_;
    Property<bool> running_{false};
    Property<bool> windowShown_{false};
    Property<bool> stopping_{false};
    Property<std::string> text_;
};

} // namespace zarvil
