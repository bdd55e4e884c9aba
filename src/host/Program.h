#pragma once

// What the program and the library that holds all but its start agree upon.

#include <functional>

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

namespace zarvil {

/// A thread beside the main one, for what takes long with the fonts. All of that is its affair, for
/// a thread keeps to one heap: two that use the main thread's wait for it, and it for them.
class FontThread {
public:
    FontThread() = default;
    FontThread(const FontThread&) = delete;
    FontThread& operator=(const FontThread&) = delete;

    /// Awaits the task before.
    virtual void begin(std::function<void()> task) = 0;
    /// Returns when the task is done. The first one, which begins with the program, reads the
    /// fonts' configuration; until it is done the environment must not change.
    virtual void await() = 0;

protected:
    ~FontThread() = default;
};

} // namespace zarvil

/// The whole program, from its arguments to its exit code.
extern "C" __attribute__((visibility("default"))) int zarvilRunProgram(int argc, char** argv,
                                                                       zarvil::FontThread& fonts);
