#pragma once

namespace zarvil::host {

struct CommandLine;

/// Prints what a maintainer asks for first: versions, panes, buses, the agent and how fast it
/// answers, the scripts' folder, polkit. No setting, no address, no title or text of a script, and
/// no name of the user: it is made to be posted in public. Ends after a few seconds at most,
/// whatever hangs. Needs the application object; gives the exit code.
[[nodiscard]] int diagnose(const CommandLine& commandLine);

} // namespace zarvil::host
