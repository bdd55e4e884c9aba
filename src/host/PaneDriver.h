#pragma once

#include "host/Bundle.h"
#include "protocol/NonCopyable.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace zarvil::host {

/// Drives one pane's life in the order that a pane may rely on. Loads the pane at its first
/// showing, so that panes never shown cost nothing.
class PaneDriver : NonCopyable {
public:
    /// Whether the pane has been left; false when it wants to stay.
    using Left = std::function<void(bool left)>;

    /// The bundle's path is filled into the options.
    PaneDriver(Bundle bundle, PaneOptions options);
    /// Takes the view out of whatever window it is in. The pane is not told: leave it before.
    ~PaneDriver();

    [[nodiscard]] const Bundle& bundle() const { return bundle_; }
    /// Loads the plug-in unless it is; says what failed, the same at every further call.
    [[nodiscard]] std::optional<BundleFailure> load();

    // After a good `load`.
    [[nodiscard]] QString title() const { return pane_->title(); }
    [[nodiscard]] QIcon icon() const;
    /// Makes the view, which does nothing before the first `select`.
    QWidget* view();
    /// Prepares a showing of the view.
    void select();
    /// Asks the pane to give way; `left` is called once, at once or when the pane has decided.
    void leave(Left left);
    /// Leaves without taking no for an answer, for a host that must end.
    void leaveRegardless();
    [[nodiscard]] bool isSelected() const { return selected_; }

private:
    void finishLeaving();
    void answerCame(bool leave);

    Bundle bundle_;
    PaneOptions options_;
    std::unique_ptr<PreferencePane> pane_;
    std::optional<BundleFailure> failure_;
    QPointer<QWidget> view_;
    Left pending_;
    bool viewDidLoad_ = false;
    bool selected_ = false;
};

} // namespace zarvil::host
