#pragma once

#include "interface/ButtonCell.h"
#include "platform/Clock.h"
#include "platform/MouseParameters.h"

#include <string>
#include <string_view>

namespace zarvil {

/// The cell of an on/off switch: a pill-shaped track with a knob.
class KXButtonCell final : public ButtonCell {
public:
    /// Reads the click thresholds once. The clock must outlive the cell.
    KXButtonCell(const MouseParameters& mouse, const Clock& clock);

    void setOnTitle(std::string_view title) { onTitle_ = title; }
    [[nodiscard]] const std::string& onTitle() const { return onTitle_; }
    void setOffTitle(std::string_view title) { offTitle_ = title; }
    [[nodiscard]] const std::string& offTitle() const { return offTitle_; }
    /// Whether the two titles are drawn beside the knob.
    void setShowStateExtras(bool show) { showStateExtras_ = show; }
    [[nodiscard]] bool showStateExtras() const { return showStateExtras_; }

private:
    std::string onTitle_;
    std::string offTitle_;
    bool showStateExtras_ = false;
};

} // namespace zarvil
