#include "host/PaneDriver.h"

#include <utility>

namespace zarvil::host {

namespace {

constexpr int unselectCancel = 0;
constexpr int unselectLater = 2;

} // namespace

PaneDriver::PaneDriver(Bundle bundle, PaneOptions options)
    : bundle_(std::move(bundle)), options_(std::move(options)) {
    options_.bundlePath = bundle_.path;
}

PaneDriver::~PaneDriver() {
    if (view_)
        view_->setParent(nullptr);
}

std::optional<BundleFailure> PaneDriver::load() {
    if (pane_ || failure_)
        return failure_;
    auto outcome = loadPane(bundle_);
    if (auto* broken = std::get_if<BundleFailure>(&outcome))
        return failure_ = std::move(*broken);
    pane_ = std::move(std::get<std::unique_ptr<PreferencePane>>(outcome));
    pane_->setOptions(options_);
    pane_->setUnselectAnswer([this](bool leave) { answerCame(leave); });
    return std::nullopt;
}

QIcon PaneDriver::icon() const {
    const QIcon own = pane_->icon();
    return own.isNull() && !bundle_.icon.isEmpty() ? QIcon(bundle_.icon) : own;
}

QWidget* PaneDriver::view() {
    if (!view_)
        view_ = pane_->mainView();
    return view_;
}

void PaneDriver::select() {
    if (!std::exchange(viewDidLoad_, true))
        pane_->mainViewDidLoad();
    selected_ = true;
    pane_->willSelect();
}

void PaneDriver::leave(Left left) {
    if (!selected_) {
        left(true);
        return;
    }
    const bool alreadyAsked = static_cast<bool>(pending_);
    pending_ = std::move(left);
    if (alreadyAsked)
        return;
    const int answer = pane_->shouldUnselect();
    if (answer != unselectLater)
        answerCame(answer != unselectCancel);
}

void PaneDriver::leaveRegardless() {
    if (!selected_)
        return;
    if (!std::exchange(pending_, nullptr))
        pane_->shouldUnselect();
    finishLeaving();
}

/// An answer that nobody waits for changes nothing.
void PaneDriver::answerCame(bool leave) {
    const auto left = std::exchange(pending_, nullptr);
    if (!left)
        return;
    if (leave)
        finishLeaving();
    left(leave);
}

void PaneDriver::finishLeaving() {
    selected_ = false;
    pane_->willUnselect();
    if (view_)
        view_->hide();
    pane_->didUnselect();
}

} // namespace zarvil::host
