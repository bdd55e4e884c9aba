#pragma once

#include <QString>

namespace zarvil::agent {

class Agent;

/// Runs one line of the operator's commands on the agent and gives the answer to print: "ok", or
/// what is wrong with the line. An empty line has an empty answer.
[[nodiscard]] QString runCommand(Agent& agent, const QString& line);

/// The commands, one a line.
[[nodiscard]] QString commandHelp();

} // namespace zarvil::agent
