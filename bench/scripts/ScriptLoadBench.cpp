#include "PaneOnFakes.h"
#include "posix/PosixFileManager.h"
#include "qt/scripts/ScriptListView.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>

/// Prints how long the pane takes to list a folder of scripts from a real file system, and for how
/// long the window stands still meanwhile, with the files in the system's cache.
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

/// Processor time of this process: others on the machine do not count.
template <typename Work>
double seconds(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// What the window waits for, in seconds.
struct Waits {
    double names = 1e9; ///< the file system's part of the next
    double load = 1e9;  ///< the handler that lists the scripts
    double turn = 1e9;  ///< the longest turn of the event loop until all texts are there
    double empty = 1e9; ///< the handler that empties the list
};

/// The least of several runs: what the work takes when nothing else disturbs it.
Waits leastWaits(PaneOnFakes& fakes) {
    qt::ScriptListView view;
    view.setModel(fakes.pane.scriptsCollection);
    view.resize(640, 480);
    view.show();
    Waits least;
    for (int run = 0; run < runs; ++run) {
        const std::string folder = fakes.disk.expandingTilde(kZVScriptingFolder);
        least.names = std::min(
            least.names, seconds([&] { (void)fakes.disk.visibleContentsOfDirectory(folder); }));
        least.load = std::min(least.load, seconds([&] { fakes.pane.loadScripts(); }));
        double longest = seconds([] { QApplication::processEvents(); });
        for (bool fired = true; fired;) {
            longest = std::max(longest, seconds([&] { fired = fakes.time.fireNext(0); }));
            longest = std::max(longest, seconds([] { QApplication::processEvents(); }));
        }
        least.turn = std::min(least.turn, longest);
        least.empty = std::min(least.empty, seconds([&] { fakes.pane.unloadScripts(); }));
        QApplication::processEvents();
    }
    return least;
}

void measure(std::size_t count) {
    const TemporaryHome home;
    const fake::StringTable strings;
    posix::PosixFileManager files(strings, home.path());
    PaneOnFakes fakes(&files);
    fill(files, count);
    const Waits waits = leastWaits(fakes);
    const double each = 1e6 / static_cast<double>(count);
    std::printf("%6zu scripts of %zu bytes: listed in %.2f ms, %.2f us each, of which the folder's "
                "names %.2f us; longest turn while they are read and shown %.2f ms; list emptied "
                "in %.2f ms\n",
                count, scriptSize, waits.load * 1e3, waits.load * each, waits.names * each,
                waits.turn * 1e3, waits.empty * 1e3);
}

} // namespace
} // namespace zarvil

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const std::size_t count : {std::size_t{1000}, std::size_t{10000}})
        zarvil::measure(count);
    return 0;
}
