#pragma once

// What the program and the library that holds all but its start agree upon.

namespace zarvil::host {

/// Exit codes, after those of sysexits(3).
namespace exitCode {

inline constexpr int success = 0;
inline constexpr int usage = 64;
inline constexpr int brokenPane = 65;
inline constexpr int noPane = 66;
inline constexpr int unavailable = 69;

} // namespace exitCode

} // namespace zarvil::host

/// The whole program, from its arguments to its exit code. `awaitFonts` returns when the fonts are
/// configured, which began before, and may be called again; until then the environment must not
/// change.
extern "C" __attribute__((visibility("default"))) int zarvilRunProgram(int argc, char** argv,
                                                                       void (*awaitFonts)());
