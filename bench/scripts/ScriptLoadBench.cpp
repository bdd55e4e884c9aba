#include "PaneOnFakes.h"
#include "posix/PosixFileManager.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

/// Prints how long the pane takes to load a folder of scripts from a real file system, in
/// microseconds per script: the least of several runs, with the files in the system's cache.
namespace zarvil {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t scriptSize = 1024; // bytes
constexpr int runs = 5;

/// A home folder that goes with this object.
class TemporaryHome {
public:
    TemporaryHome() {
        std::string path = fs::temp_directory_path() / "zarvil-bench-XXXXXX";
        path_ = ::mkdtemp(path.data());
    }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;
    ~TemporaryHome() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

void fill(FileManager& files, std::size_t count) {
    fs::create_directories(files.expandingTilde(kZVScriptingFolder));
    for (std::size_t index = 0; index < count; ++index) {
        std::string text = "echo " + std::to_string(index) + "\n";
        text.resize(scriptSize, '#');
        const std::string path = script::filePath(files, "Script " + std::to_string(index));
        if (const auto error = files.writeText(text, path, Atomicity::Direct)) {
            std::fprintf(stderr, "%s\n", error->description.c_str());
            std::exit(1);
        }
    }
}

double leastSeconds(Zarvil_Preferences& pane) {
    double least = 1e9;
    for (int run = 0; run < runs; ++run) {
        pane.unloadScripts();
        const auto start = std::chrono::steady_clock::now();
        pane.loadScripts();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        least = std::min(least, took.count());
    }
    return least;
}

void measure(std::size_t count) {
    const TemporaryHome home;
    posix::PosixFileManager files(home.path());
    PaneOnFakes fakes(&files);
    fill(files, count);
    const double seconds = leastSeconds(fakes.pane);
    const std::size_t loaded = fakes.pane.scriptsArrayController.arrangedObjects().size();
    std::printf("%6zu scripts of %zu bytes: %8.2f ms, %6.2f us per script\n", loaded, scriptSize,
                seconds * 1e3, seconds * 1e6 / static_cast<double>(count));
}

} // namespace
} // namespace zarvil

int main() {
    for (const std::size_t count : {std::size_t{1000}, std::size_t{10000}})
        zarvil::measure(count);
    return 0;
}
