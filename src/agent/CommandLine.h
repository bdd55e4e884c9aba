#pragma once

#include "agent/AgentApplication.h"

class QCoreApplication;

namespace zarvil::agent {

/// Reads the arguments of the process and names the application. Ends the process, with the reason
/// on standard error, when they make no sense, and after a request for help or the version.
[[nodiscard]] ApplicationOptions readCommandLine(const QCoreApplication& application);

} // namespace zarvil::agent
