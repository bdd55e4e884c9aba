#pragma once

#include "interface/View.h"
#include "platform/Canvas.h"

namespace zarvil {

/// A yellow note card with a brown outline and a soft shadow, behind what stands on it. Its y
/// grows upwards.
class ZVCollectionNoteView final : public View {
public:
    /// Expects a canvas whose y grows upwards. A view too small for the card is no special case.
    void drawRect(Canvas& canvas) const;
};

} // namespace zarvil
