#include "host/Program.h"

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace zarvil {

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

class Worker final : public FontThread {
public:
    ~Worker() {
        await();
        if (!thread_.joinable())
            return;
        {
            const std::lock_guard lock(mutex_);
            ended_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }

    void begin(std::function<void()> task) override {
        await();
        {
            const std::lock_guard lock(mutex_);
            task_ = std::move(task);
        }
        changed_.notify_all();
        if (!thread_.joinable())
            thread_ = std::thread(&Worker::work, this);
    }
    void await() override {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !task_; });
    }

private:
    void work() {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return task_ || ended_; });
            if (ended_)
                return;
            lock.unlock();
            task_(); // nobody else touches it before it is done
            lock.lock();
            task_ = nullptr;
            changed_.notify_all();
        }
    }

    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> task_;
    bool ended_ = false;
};

// Not linked: their library would be searched for every symbol of Qt's.
constexpr const char* fontLibrary = "libfontconfig.so.1";

int run(int argc, char** argv) {
    Worker fonts;
    if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"))
        if (auto* configure = find<decltype(FcInit)>(fontLibrary, "FcInit"))
            fonts.begin(configure);
    // The loader itself knows where the program is.
    if (auto* program =
            find<decltype(zarvilRunProgram)>("$ORIGIN/" ZARVIL_PROGRAM_LIBRARY, "zarvilRunProgram"))
        return program(argc, argv, fonts);
    std::fprintf(stderr, "zarvil-preferences: %s\n", dlerror());
    return host::exitCode::unavailable;
}

} // namespace

} // namespace zarvil

/// Reading the fonts' configuration is a fifth of the work of a start, and loading Qt an eighth:
/// they are done side by side, and so all that needs Qt stands in a library of its own.
int main(int argc, char** argv) {
    zarvil::economizeMemory();
    const int code = zarvil::run(argc, argv);
    // Qt has given up what it took over, but takes nothing over where there is no display.
    if (auto* giveUp = zarvil::find<decltype(FcFini)>(zarvil::fontLibrary, "FcFini"))
        giveUp();
    return code;
}
