#pragma once

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include <dirent.h>
#include <unistd.h>

namespace zarvil::cocoa::test {

/// Kills the notification server that serves this test alone, which has the same folder for
/// temporary files. False when there is none.
inline bool killNotificationServer() {
    const std::string mark = std::string("TEMP=") + std::getenv("TEMP");
    bool killed = false;
    DIR* processes = opendir("/proc");
    while (const dirent* entry = readdir(processes)) {
        const std::string folder = std::string("/proc/") + entry->d_name;
        std::string name;
        std::getline(std::ifstream(folder + "/comm"), name);
        if (name != "gdnc")
            continue;
        std::ifstream environment(folder + "/environ");
        for (std::string variable; std::getline(environment, variable, '\0');) {
            if (variable == mark)
                killed = ::kill(std::stoi(entry->d_name), SIGKILL) == 0;
        }
    }
    closedir(processes);
    return killed;
}

} // namespace zarvil::cocoa::test
