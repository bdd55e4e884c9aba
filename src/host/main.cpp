#include "host/Program.h"

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

void economizeMemory() {
#ifdef __GLIBC__
    // The library raises its own limit as it goes, and keeps what the start had need of for good.
    constexpr int keptFree = 128 * 1024; // bytes, where the library begins
    mallopt(M_TRIM_THRESHOLD, keptFree);
    // One heap for the main thread and one for those beside it, of which at the start that with the
    // fonts allocates as much as the main one.
    mallopt(M_ARENA_MAX, 2);
#endif
}

/// A function of a library, or null; `dlerror` says why.
template <typename Function>
Function* find(const char* library, const char* name) {
    void* handle = dlopen(library, RTLD_NOW | RTLD_LOCAL);
    return handle ? reinterpret_cast<Function*>(dlsym(handle, name)) : nullptr;
}

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

// Not linked: their library would be searched for every symbol of Qt's.
constexpr const char* fontLibrary = "libfontconfig.so.1";
std::thread configuringFonts;

void beginWithFonts() {
    if (!isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY"))
        return;
    if (auto* configure = find<decltype(FcInit)>(fontLibrary, "FcInit"))
        configuringFonts = std::thread(configure);
}

void awaitFonts() {
    if (configuringFonts.joinable())
        configuringFonts.join();
}

/// Qt has given up what it took over, but takes nothing over where there is no display.
void endWithFonts() {
    awaitFonts();
    if (auto* giveUp = find<decltype(FcFini)>(fontLibrary, "FcFini"))
        giveUp();
}

} // namespace

/// Reading the fonts' configuration is a fifth of the work of a start, and loading Qt an eighth:
/// they are done side by side, and so all that needs Qt stands in a library of its own.
int main(int argc, char** argv) {
    economizeMemory();
    beginWithFonts();
    int code = zarvil::host::exitCode::unavailable;
    // The loader itself knows where the program is.
    if (auto* run =
            find<decltype(zarvilRunProgram)>("$ORIGIN/" ZARVIL_PROGRAM_LIBRARY, "zarvilRunProgram"))
        code = run(argc, argv, awaitFonts);
    else
        std::fprintf(stderr, "zarvil-preferences: %s\n", dlerror());
    endWithFonts();
    return code;
}
