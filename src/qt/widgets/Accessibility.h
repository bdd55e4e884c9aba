#pragma once

class QString;
class QWidget;

namespace zarvil::qt {

/// Makes the drawn widgets known to assistive technologies. Called by their constructors; only the
/// first call does anything.
void installAccessibility();

/// Has the user's assistive program say something at once, whatever it is at; `speaker` is what
/// tells it. Nothing happens without such a program.
void announce(QWidget& speaker, const QString& words);

} // namespace zarvil::qt
