#pragma once

#include "Fakes.h"
#include "posix/PosixFileManager.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace zarvil::posix {

namespace fs = std::filesystem;

/// A home folder of its own on the real file system.
class PosixHarness : public testing::Test {
protected:
    PosixHarness() {
        fs::permissions(home, fs::perms{0755});
        fs::create_directories(scripts());
    }
    ~PosixHarness() override {
        std::error_code ignored;
        fs::remove_all(home, ignored);
    }

    [[nodiscard]] fs::path scripts() const { return home / "Library/Zarvil Scripts"; }
    [[nodiscard]] fs::path script(std::string_view name) const { return scripts() / name; }

    static void put(const fs::path& path, std::string_view bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string get(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// Names in a folder, hidden ones included.
    static std::set<std::string> namesIn(const fs::path& folder) {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.insert(entry.path().filename());
        return names;
    }

    /// Whether the check holds in a child process, so that limits, rights and mounts end with it.
    static bool holdsInChild(const std::function<bool()>& check) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(check() ? 0 : 1);
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    /// The superuser may write anywhere; others have to keep to the permissions.
    static bool becomeOrdinaryUser() {
        constexpr uid_t nobody = 65534;
        return ::geteuid() != 0 || ::setresuid(nobody, nobody, nobody) == 0;
    }

    static fs::path makeHome() {
        std::string path = fs::temp_directory_path() / "zarvil-test-XXXXXX";
        return ::mkdtemp(path.data());
    }

    const fs::path home = makeHome();
    fake::StringTable strings;
    PosixFileManager files{strings, (home / "").string()};
};

} // namespace zarvil::posix
