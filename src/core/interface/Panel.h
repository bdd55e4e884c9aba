#pragma once

#include "interface/Color.h"
#include "interface/View.h"

#include <optional>

namespace zarvil {

/// A window of its own: on screen as a sheet, or not at all. A closed panel stays usable.
class Panel : public View {
public:
    void setOpaque(bool opaque) { opaque_ = opaque; }
    [[nodiscard]] bool isOpaque() const { return opaque_; }
    /// Unset means the desktop's window background.
    void setBackgroundColor(Color color) { backgroundColor_ = color; }
    [[nodiscard]] std::optional<Color> backgroundColor() const { return backgroundColor_; }

    void beginSheet() { onScreen_.set(true); }
    /// Ends the sheet; it stays on screen until it is ordered out.
    void endSheet() {}
    void orderOut() { onScreen_.set(false); }
    void close() { orderOut(); }
    [[nodiscard]] bool isOnScreen() const { return onScreen_.get(); }
    [[nodiscard]] const Property<bool>& onScreenProperty() const { return onScreen_; }

private:
    Property<bool> onScreen_{false};
    std::optional<Color> backgroundColor_;
    bool opaque_ = true;
};

} // namespace zarvil
