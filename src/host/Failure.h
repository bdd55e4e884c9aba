#pragma once

#include <QString>

namespace zarvil::host {

/// Whether the environment names a display, or a platform that needs none.
[[nodiscard]] bool hasDisplay();

/// Writes to the standard error stream.
void logFailure(const QString& message);

/// The same, and in a message box if the user did not start the program from a terminal: there
/// nobody reads the stream. Needs the application object; returns when the box is dismissed.
void showFailure(const QString& message);

} // namespace zarvil::host
