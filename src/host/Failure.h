#pragma once

#include <QString>

#include <optional>

namespace zarvil::host {

/// Why no window can be shown, in words, judged by the environment and the plug-ins that are
/// installed; nothing if one can. Needs no application object: Qt ends the process in its making.
[[nodiscard]] std::optional<QString> displayFault();

/// Writes to the standard error stream.
void logFailure(const QString& message);

/// Writes what is wrong with the command line; gives the exit code.
int failUsage(const QString& message);

/// Writes the message, and shows it in a message box if the user did not start the program from a
/// terminal: there nobody reads the stream. Needs the application object; returns when the box is
/// dismissed.
void showFailure(const QString& message);

} // namespace zarvil::host
