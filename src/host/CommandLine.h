#pragma once

#include "host/Appearance.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace zarvil::host {

struct CommandLine {
    enum class Wish { Run, Help, Version, Diagnose };
    Wish wish = Wish::Run;
    QString bundle; ///< empty to look in the folders of installed panes
    QString root;   ///< absolute; empty for the real product paths
    QString tab;    ///< to turn to, as its user writes it; empty for the one shown last
    /// Started by the message bus: the window waits until it is asked for.
    bool isService = false;
    AppearanceChoice appearance = AppearanceChoice::Auto;
};

/// What is wrong with a command line, in words.
struct UsageError {
    QString message;
};

/// `arguments` start with the program's name. `environmentAppearance` counts unless an option says
/// otherwise; empty for none.
[[nodiscard]] std::variant<CommandLine, UsageError>
parseCommandLine(const QStringList& arguments, const QString& environmentAppearance);

/// Needs the application object.
[[nodiscard]] QString helpText();

} // namespace zarvil::host
