#include "host/Host.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

int main(int argc, char** argv) {
#ifdef __GLIBC__
    // The library raises its own limit as it goes, and keeps what the start had need of for good.
    constexpr int keptFree = 128 * 1024; // bytes, where the library begins
    mallopt(M_TRIM_THRESHOLD, keptFree);
    // The few threads beside the main one allocate little and seldom, so one heap serves them all.
    mallopt(M_ARENA_MAX, 1);
#endif
    return zarvil::host::runHost(argc, argv);
}
