#pragma once

#include <QLoggingCategory>

namespace zarvil::host {

/// "zarvil.host": what the application does apart from its panes.
Q_DECLARE_LOGGING_CATEGORY(hostLog)

} // namespace zarvil::host
