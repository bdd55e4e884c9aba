#pragma once

#include "interface/Property.h"
#include "pane/Platform.h"
#include "protocol/NonCopyable.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// The script that the user runs, one at a time, and what is shown of it. While it runs the pane
/// is blocked: no handler begins, and a front end takes no input but that of the window below.
class ScriptProgress : NonCopyable {
public:
    /// The ports must outlive this.
    explicit ScriptProgress(Platform& platform) : platform_(platform) {}

    /// Told why the script has failed; nothing if it has not, or was stopped.
    using Ended = std::function<void(const std::string& reason)>;

    /// To be called within a handler. A failure is presented as well.
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
    void finish(const std::optional<ScriptError>& error);

    Platform& platform_;
    Subscription hold_;
    Ended ended_;
    std::unique_ptr<Timer> windowTimer_;
    std::unique_ptr<ScriptRun> run_;
    Property<bool> running_{false};
    Property<bool> windowShown_{false};
    Property<bool> stopping_{false};
    Property<std::string> text_;
};

} // namespace zarvil
