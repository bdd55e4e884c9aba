#pragma once

#include "interface/ButtonCell.h"
#include "platform/Canvas.h"

namespace zarvil {

/// The cell of a message panel's button: dark, bevelled, with a white centred title.
class ZVMessageViewButton final : public ButtonCell {
public:
    /// Draws all of the button, in the flipped coordinates of its control view. Clears the frame
    /// first, so that a front end whose views share one surface draws it in a transparency layer.
    void drawInteriorWithFrame(const Rect& frame, View* controlView, Canvas& canvas) const;
    /// In points; the frame must have room for it.
    void setFontSize(double size) { fontSize_ = size; }

private:
    double fontSize_ = TextStyle::defaultFontSize;
};

} // namespace zarvil
