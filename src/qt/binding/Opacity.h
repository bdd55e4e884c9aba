#pragma once

#include "interface/Property.h"

class QWidget;

namespace zarvil::qt {

/// Shows a widget and what is in it at an opacity from 0 to 1. An animated change glides; a
/// change during a glide starts from where the glide is.
void showOpacity(QWidget& widget, double opacity, Transition transition);

} // namespace zarvil::qt
