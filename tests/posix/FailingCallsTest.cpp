#include "FailingCalls.h"
#include "PaneOnFakes.h"
#include "PosixHarness.h"
#include "pane/Product.h"
#include "posix/FileDescriptor.h"
#include "posix/PosixProcessControl.h"
#include "posix/PosixScriptRunner.h"
#include "posix/SettingsFile.h"
#include "protocol/Messages.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <array>
#include <condition_variable>
#include <mutex>
#include <sys/socket.h>

namespace zarvil::posix {
namespace {

/// What the user must be told.
enum class Due { Alert, Note, Nothing };

/// Another process, which is nobody's child here and ends with this object.
class Stranger {
public:
    Stranger() {
        std::array<int, 2> ends{};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
        ours_ = FileDescriptor(ends[0]);
        const FileDescriptor theirs(ends[1]);
        const pid_t parent = ::fork();
        if (parent == 0) {
            ours_.close();
            if (pid_t self = ::fork() == 0 ? ::getpid() : 0; self != 0) {
                static_cast<void>(!::write(theirs.get(), &self, sizeof self));
                static_cast<void>(!::read(theirs.get(), &self, sizeof self));
            }
            ::_exit(0);
        }
        ::waitpid(parent, nullptr, 0);
        EXPECT_EQ(::read(ours_.get(), &process, sizeof process), ssize_t{sizeof process});
    }

    pid_t process = 0;

private:
    FileDescriptor ours_;
};

/// A pane on the real file system, with scripts that really run.
class World {
public:
    explicit World(PosixFileManager& files) : fakes(&files, &runner_) {
        fakes.workspace.running = {{fakes.workspace.mainBundleIdentifier(), host_.process}};
        fakes.processes.killing = [this](std::int64_t process) {
            return isHostKilled = PosixProcessControl().kill(process);
        };
        fakes.pane.mainViewDidLoad();
        fakes.pane.willSelect();
        fakes.pane.createNewScript.setAction("create:");
    }

    void listScripts() {
        send(message::savedPrefs, Dictionary{{"UseScripts", true}});
        send(message::pingAnswer, {});
    }
    void loseAgent() { fakes.time.advance(6); }

    /// The card of that title, or null.
    std::shared_ptr<ZVScriptCollectionItem> card(std::string_view title) {
        for (std::size_t index = 0; index < count(); ++index)
            if (auto item =
                    fakes.pane.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(index);
                item->data() && *item->data()->stringForKey(script::title) == title)
                return item;
        return nullptr;
    }
    [[nodiscard]] std::size_t count() const {
        return fakes.pane.scriptsArrayController.arrangedObjects().size();
    }
    /// Ends the edit of a card, if it is there.
    void edit(std::string_view former, std::string_view title, std::string_view text) {
        if (const auto item = card(former)) {
            if (!item->editing())
                item->edit();
            item->eTitle()->userDidEdit(title);
            item->eText()->userDidEdit(text);
            item->edit();
        }
    }
    void run(std::string_view title) {
        if (const auto item = card(title))
            item->execute();
        std::unique_lock lock(mutex_);
        while (fakes.pane.scriptProgress.runningProperty().get()) {
            arrived_.wait(lock, [this] { return ended_ != nullptr; });
            const auto call = std::exchange(ended_, nullptr);
            lock.unlock();
            call();
            lock.lock();
        }
    }

private:
    void send(std::string_view name, const Dictionary& info) {
        fakes.bus.post(Message(name, info));
        fakes.bus.deliver();
    }

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::function<void()> ended_;
    fake::StringTable strings_;
    PosixScriptRunner runner_{strings_, [this](std::function<void()> call) {
                                  const std::lock_guard lock(mutex_);
                                  ended_ = std::move(call);
                                  arrived_.notify_one();
                              }};

    Stranger host_;

public:
    PaneOnFakes fakes;
    bool isHostKilled = false;
};

class FailingCallsTest : public PosixHarness {
protected:
    struct Task {
        std::string name;
        std::function<void(World&)> perform;
        std::function<bool(World&)> isDone;
        /// When the task did not come to its end; the failed call is given.
        std::function<Due(const std::string&)> due;
        /// Neither the disk nor a card may have lost anything, done or not.
        std::function<bool(World&)> isNothingLost = [](World&) { return true; };
        std::function<void()> upset = [] {}; ///< before the pane is there
        bool isListedBefore = true;
    };

    void prepare() {
        fs::remove_all(home / "Library");
        fs::remove_all(home / "Applications");
        fs::create_directories(scripts());
        put(script("a.zvscript"), "old");
        put(script("b.zvscript"), "echo >\"$HOME/ran\"");
        fs::remove(home / "ran");
    }

    /// Whether the call was reached at all.
    bool tryWithFailure(const Task& task, int call, int error) {
        prepare();
        task.upset();
        World world(files);
        world.fakes.platform.root = home.string();
        if (task.isListedBefore)
            world.listScripts();
        world.fakes.errors.presented.clear();
        failing::arm(call, error);
        task.perform(world);
        const std::string failed = failing::disarm();
        SCOPED_TRACE(task.name + ", call " + std::to_string(call) + " " + failed);
        const bool isNoted = std::ranges::any_of(noted, [&](const std::string& title) {
            const auto item = world.card(title);
            return item && !item->noteProperty().get().caption.empty();
        });
        const std::size_t alerts = world.fakes.errors.presented.size();
        // A file that was gone before it was replaced is told of, though all is well then.
        const bool isStrange = failed.ends_with("No such file or directory") && alerts == 1;
        const Due due =
            task.isDone(world) ? isStrange ? Due::Alert : Due::Nothing : task.due(failed);
        EXPECT_EQ(alerts, due == Due::Alert ? 1U : 0U);
        EXPECT_EQ(isNoted, due == Due::Note);
        EXPECT_TRUE(task.isDone(world) || !failed.empty());
        EXPECT_TRUE(task.isNothingLost(world));
        // The agent goes and comes back, and the user tries again.
        world.loseAgent();
        world.listScripts();
        world.fakes.errors.presented.clear();
        if (!task.isDone(world))
            task.perform(world);
        EXPECT_TRUE(task.isDone(world)) << "the next time";
        EXPECT_TRUE(world.fakes.errors.presented.empty());
        return !failed.empty();
    }

    [[nodiscard]] bool has(std::string_view name, std::string_view text) const {
        return fs::exists(script(name)) && get(script(name)) == text;
    }
    static bool isOnCard(World& world, std::string_view title, std::string_view text) {
        const auto item = world.card(title);
        return item && *item->data()->stringForKey(script::text) == text;
    }

    const std::vector<std::string> noted{"a", "c"};
};

TEST_F(FailingCallsTest, eachOnceLosesNothingAndIsToldOfWhereTheUserMustKnow) {
    const auto due = [](Due what) { return [what](const std::string&) { return what; }; };
    const auto keeps = [this](World&) { return has("a.zvscript", "old"); };
    const Task tasks[] = {
        {"list", [](World& world) { world.listScripts(); },
         [](World& world) { return world.count() == 2 && isOnCard(world, "a", "old"); },
         // A folder that is not seen cannot be made either; the rest is silent on purpose.
         [](const std::string& failed) {
             return failed.starts_with("stat") ? Due::Alert : Due::Nothing;
         },
         [&](World& world) { return keeps(world) && world.count() % 2 == 0; }, [] {}, false},
        {"make the folder", [](World& world) { world.listScripts(); },
         [this](World&) { return fs::is_directory(scripts()); }, due(Due::Alert),
         [](World&) { return true; }, [this] { fs::remove_all(scripts()); }, false},
        {"create",
         [](World& world) {
             world.fakes.pane.scriptsTitle.userDidEdit("c");
             world.fakes.pane.createNewScript.performClick();
         },
         [this](World& world) { return has("c.zvscript", "") && world.card("c"); }, due(Due::Alert),
         keeps},
        {"edit", [](World& world) { world.edit("a", "a", "new"); },
         [this](World& world) { return has("a.zvscript", "new") && isOnCard(world, "a", "new"); },
         due(Due::Note),
         [&](World& world) {
             return isOnCard(world, "a", "new") && (keeps(world) || has("a.zvscript", "new"));
         }},
        {"rename", [](World& world) { world.edit("a", "c", "new"); },
         [this](World&) { return has("c.zvscript", "new") && !fs::exists(script("a.zvscript")); },
         [this](const std::string&) { return has("c.zvscript", "new") ? Due::Alert : Due::Note; },
         [&](World& world) {
             return isOnCard(world, "c", "new") && (keeps(world) || has("c.zvscript", "new"));
         }},
        {"remove",
         [](World& world) {
             if (const auto item = world.card("a"))
                 item->remove();
         },
         [this](World&) { return !fs::exists(script("a.zvscript")); }, due(Due::Alert)},
        {"run", [](World& world) { world.run("b"); },
         [this](World&) { return fs::exists(home / "ran"); }, due(Due::Alert), keeps},
        {"uninstall", [](World& world) { world.fakes.pane.performAction("unistall:", nullptr); },
         [this](World& world) {
             return !fs::exists(home / "Applications/Zarvil.app") &&
                    world.isHostKilled != (world.fakes.processes.log.back() == "exit 0");
         },
         due(Due::Nothing), keeps,
         [this] { fs::create_directories(home / "Applications/Zarvil.app"); }},
    };
    ::setenv("HOME", home.c_str(), 1);
    for (const Task& task : tasks)
        for (int error = 0; error < failing::errorsOfACall; ++error) {
            int call = 1;
            while (tryWithFailure(task, call, error))
                ++call;
            EXPECT_GT(call, 2) << task.name << " makes calls";
        }
}

TEST_F(FailingCallsTest, settingsAreKeptUntilTheyCanBeWrittenAndHarmNoOthers) {
    const std::string path = (home / "config/settings.ini").string();
    for (int error = 0; error < failing::errorsOfACall; ++error) {
        std::string failed = "none yet";
        for (int call = 1; !failed.empty(); ++call) {
            fs::remove_all(home / "config");
            SettingsFile(path, [] {}).setValue("window", "former", "1");
            int faults = 0;
            SettingsFile settings(path, [&] { ++faults; });
            failing::arm(call, error);
            settings.setValue("tabs", "new", "2");
            failed = failing::disarm();
            SCOPED_TRACE("call " + std::to_string(call) + " " + failed);
            EXPECT_EQ(settings.value("tabs", "new"), "2");
            EXPECT_EQ(settings.value("window", "new"), "");
            const std::string text = get(path);
            const bool isWritten = text == "[window]\nformer=1\n[tabs]\nnew=2\n";
            EXPECT_TRUE(isWritten || text == "[window]\nformer=1\n") << text;
            EXPECT_EQ(faults, isWritten ? 0 : 1);
            settings.setValue("window", "next", "3");
            EXPECT_EQ(get(path), "[window]\nnext=3\nformer=1\n[tabs]\nnew=2\n");
        }
    }
}

} // namespace
} // namespace zarvil::posix
