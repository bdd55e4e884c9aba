#pragma once

#include "pane/Platform.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Hand-written fakes of the ports. Each keeps a plain log of what it was asked.
namespace zarvil::fake {

/// A clock and its timers; time passes only in `advance`.
class VirtualTime final : public Timers, public Clock {
public:
    std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                    std::function<void()> call) override {
        auto entry = std::make_shared<Entry>(
            Entry{now_ + interval, repetition == Repetition::Repeating ? interval : 0, call});
        entries_.push_back(entry);
        return std::make_unique<Handle>(std::move(entry));
    }

    double timeIntervalSinceReferenceDate() const override { return now_; }

    void advance(double seconds) {
        const double end = now_ + seconds;
        while (fireNext(end)) {
        }
        now_ = end;
    }
    /// The first timer that is due by then, as one turn of an event loop; false without one.
    bool fireNext(double end) {
        const auto next = nextDue(end);
        if (!next)
            return false;
        now_ = next->due;
        if (next->period > 0)
            next->due += next->period;
        else
            next->valid = false;
        const auto call = next->call;
        call();
        return true;
    }

    std::size_t pendingCount() const {
        return static_cast<std::size_t>(
            std::ranges::count_if(entries_, [](const auto& entry) { return entry->valid; }));
    }

private:
    struct Entry {
        double due;
        double period;
        std::function<void()> call;
        bool valid = true;
    };
    struct Handle final : Timer {
        explicit Handle(std::shared_ptr<Entry> timer) : entry(std::move(timer)) {}
        ~Handle() override { entry->valid = false; }
        std::shared_ptr<Entry> entry;
    };

    std::shared_ptr<Entry> nextDue(double end) {
        std::erase_if(entries_, [](const auto& entry) { return !entry->valid; });
        const auto next =
            std::ranges::min_element(entries_, {}, [](const auto& entry) { return entry->due; });
        return next != entries_.end() && (*next)->due <= end ? *next : nullptr;
    }

    double now_ = 1000;
    std::vector<std::shared_ptr<Entry>> entries_;
};

class Workspace final : public zarvil::Workspace {
public:
    bool canLaunchApplication(std::string_view /*path*/) const override { return launches; }
    bool launchApplication(std::string_view path) override {
        launched.emplace_back(path);
        return launches;
    }
    std::vector<RunningApplication> runningApplications() const override { return running; }
    std::string mainBundleIdentifier() const override { return hostIdentifier; }
    bool openURL(std::string_view url) override {
        opened.emplace_back(url);
        return true;
    }

    std::vector<std::string> launched;
    bool launches = true;
    std::vector<std::string> opened;
    std::vector<RunningApplication> running;
    std::string hostIdentifier = "com.Tessrow.Preferences";
};

class UserDefaults final : public zarvil::UserDefaults {
public:
    bool boolForKey(std::string_view key) const override {
        const auto found = values.find(std::string(key));
        return found != values.end() && found->second;
    }
    void setBool(bool value, std::string_view key) override { values[std::string(key)] = value; }

    std::map<std::string, bool> values;
};

/// Runs `whilePresenting` where a presenter with an event loop of its own would let others in.
class ErrorPresenter final : public zarvil::ErrorPresenter {
public:
    void presentError(const Error& error) override {
        presented.push_back(error);
        if (whilePresenting)
            whilePresenting();
    }

    std::function<void()> whilePresenting;
    std::vector<Error> presented;
};

/// Translates only what it is given, and the rest as `inherited` does.
class StringTable final : public zarvil::StringTable {
public:
    std::string localizedString(std::string_view key) const override {
        const auto found = translations.find(std::string(key));
        if (found != translations.end())
            return found->second;
        return inherited ? inherited->localizedString(key) : std::string(key);
    }

    static inline const zarvil::StringTable* inherited = nullptr;
    std::map<std::string, std::string> translations;
};

/// Its scripts end at once, or when the test says so.
class ScriptRunner final : public zarvil::ScriptRunner {
public:
    std::unique_ptr<ScriptRun> start(std::string_view source, Ended ended) override {
        ran.emplace_back(source);
        if (!lasting)
            ended(outcome);
        else
            end = std::move(ended);
        return std::make_unique<Run>(*this);
    }

    std::vector<std::string> ran;
    std::vector<std::string> log; ///< what became of those that ran
    std::optional<ScriptError> outcome;
    bool lasting = false;
    Ended end;

private:
    struct Run final : ScriptRun {
        explicit Run(ScriptRunner& runner) : runner_(runner) {}
        ~Run() override { runner_.log.emplace_back("over"); }
        bool canStop() const override { return true; }
        void stop() override { runner_.log.emplace_back("stop"); }
        ScriptRunner& runner_;
    };
};

/// Keeps its questions until the test answers them.
class Authorization final : public zarvil::Authorization {
public:
    struct Question {
        std::string right;
        Interaction interaction;
        Reply reply;
    };
    void check(std::string_view right, Interaction interaction, Reply reply) override {
        questions.push_back({std::string(right), interaction, std::move(reply)});
    }
    void release(std::string_view right) override { released.emplace_back(right); }

    std::vector<Question> questions;
    std::vector<std::string> released;
};

/// Runs `duringModal` where the user would be operating the panel.
class ModalLoop final : public zarvil::ModalLoop {
public:
    void runModalForWindow(Panel& /*panel*/) override {
        log.emplace_back("run");
        if (duringModal)
            duringModal();
        log.emplace_back("returned");
    }
    void stopModal() override { log.emplace_back("stop"); }

    std::vector<std::string> log;
    std::function<void()> duringModal;
};

class ProcessControl final : public zarvil::ProcessControl {
public:
    bool kill(std::int64_t processIdentifier) override {
        log.push_back("kill " + std::to_string(processIdentifier));
        return killing(processIdentifier);
    }
    void exit(int status) override { log.push_back("exit " + std::to_string(status)); }

    std::function<bool(std::int64_t)> killing = [](std::int64_t) { return true; };
    std::vector<std::string> log;
};

/// A file system in memory. Files map paths to bytes; `failing` paths refuse every change.
class FileManager final : public zarvil::FileManager {
public:
    std::string expandingTilde(std::string_view path) const override {
        return path.starts_with("~") ? "/home/user" + std::string(path.substr(1))
                                     : std::string(path);
    }
    FileKind kindOfItem(std::string_view path) const override {
        const std::string key(path);
        if (folders.contains(key))
            return FileKind::Directory;
        return files.contains(key) ? FileKind::Other : FileKind::Missing;
    }
    std::vector<std::string> visibleContentsOfDirectory(std::string_view path) const override {
        std::vector<std::string> names;
        const auto collect = [&](const std::string& item) {
            const std::string folder = std::string(path) + "/";
            if (!item.starts_with(folder))
                return;
            const std::string name = item.substr(folder.size());
            if (!name.starts_with(".") && name.find('/') == std::string::npos)
                names.push_back(name);
        };
        for (const auto& [file, text] : files)
            collect(file);
        for (const auto& folder : folders)
            collect(folder);
        return names;
    }
    std::optional<std::string> readText(std::string_view path) const override {
        const auto found = files.find(std::string(path));
        return found == files.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<Error> writeText(std::string_view text, std::string_view path,
                                   Atomicity atomicity) override {
        log.push_back((atomicity == Atomicity::Atomic ? "write atomically " : "write ") +
                      std::string(path));
        const std::string key(path);
        if (failing.contains(key) || !folders.contains(key.substr(0, key.rfind('/'))))
            return failure(path);
        files[key] = text;
        return std::nullopt;
    }
    Replacement replaceItem(std::string_view former, std::string_view text,
                            std::string_view path) override {
        const std::string key(path);
        log.push_back("replace " + std::string(former) + " by " + key);
        const bool refused = kindOfItem(former) == FileKind::Missing;
        Replacement outcome{refused ? std::optional(failure(former)) : std::nullopt, {}};
        if (failing.contains(key) || !folders.contains(key.substr(0, key.rfind('/')))) {
            outcome.write = failure(path);
            return outcome;
        }
        if (!refused)
            files.erase(std::string(former));
        files[key] = text;
        return outcome;
    }
    std::optional<Error> createDirectory(std::string_view path) override {
        log.push_back("create folder " + std::string(path));
        const std::string key(path);
        if (failing.contains(key) || kindOfItem(path) != FileKind::Missing)
            return failure(path);
        folders.insert(key);
        return std::nullopt;
    }
    std::optional<Error> removeItem(std::string_view path) override {
        log.push_back("remove " + std::string(path));
        const std::string key(path);
        if (failing.contains(key) || kindOfItem(path) == FileKind::Missing)
            return failure(path);
        files.erase(key);
        folders.erase(key);
        return std::nullopt;
    }

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    std::set<std::string> failing;
    std::vector<std::string> log;

private:
    static Error failure(std::string_view path) {
        return {std::string(cocoaErrorDomain), 4, "cannot change " + std::string(path)};
    }
};

} // namespace zarvil::fake
