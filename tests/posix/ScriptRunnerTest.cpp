#include "PosixHarness.h"
#include "posix/PosixProcessControl.h"
#include "posix/PosixScriptRunner.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <future>
#include <ostream>
#include <sys/resource.h>
#include <thread>

namespace zarvil {

void PrintTo(const ScriptError& error, std::ostream* stream) {
    *stream << error.number << " \"" << error.message << '"';
}

} // namespace zarvil

namespace zarvil::posix {
namespace {

using namespace std::string_literals;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ScriptRunnerTest : public PosixHarness {
protected:
    ScriptRunnerTest() { ::setenv("TMPDIR", scripts().c_str(), 1); }
    ~ScriptRunnerTest() override { ::unsetenv("TMPDIR"); }

    [[nodiscard]] std::string result() const { return (home / "result").string(); }
    /// What the script has put into the file of its first word.
    std::string resultOf(std::string_view source) {
        EXPECT_EQ(run(source), std::nullopt);
        return get(result());
    }

    using Result = std::optional<ScriptError>;
    /// Starts a script whose result a test may wait for.
    std::unique_ptr<ScriptRun> start(std::string_view source, std::future<Result>& result) {
        auto promise = std::make_shared<std::promise<Result>>();
        result = promise->get_future();
        return runner.start(source, [promise](const Result& error) { promise->set_value(error); });
    }
    Result run(std::string_view source) {
        std::future<Result> result;
        const auto script = start(source, result);
        return result.get();
    }
    /// Waits for the file that a script has put its process identifier into.
    pid_t leader() const {
        while (get(result()).find('\n') == std::string::npos)
            std::this_thread::yield();
        return std::stoi(get(result()));
    }
    static void waitForEndOfGroup(pid_t leader) {
        while (::kill(-leader, 0) == 0)
            std::this_thread::yield();
    }

    PosixScriptRunner runner{strings, [](const std::function<void()>& call) { call(); }};
};

TEST_F(ScriptRunnerTest, successIsSilentWhateverTheScriptPrints) {
    for (const std::string_view source :
         {"", "exit 0", "echo out; echo err >&2", "#!/bin/sh\ntrue", "#! /bin/sh -e\ntrue",
          "#!/bin/sh\r\n", "#!\ntrue", "#!", "yes | head -c 1000000", "cat",
          "yes >&2 & exit 0"}) // a background job goes on writing
        EXPECT_FALSE(run(source)) << source;
    EXPECT_THAT(namesIn(scripts()), IsEmpty()) << "the script's copy is left behind";
}

TEST_F(ScriptRunnerTest, aFailureCarriesTheStatusAndTheLastLineOfTheErrorOutput) {
    struct Case {
        std::string source;
        ScriptError error;
    };
    const Case cases[] = {
        {"exit 3", {3, "The script failed with exit status 3 and gave no reason."}},
        {"echo first >&2; echo last >&2; exit 4", {4, "last", true}},
        {"printf 'last\\n \\n\\n\\t\\n' >&2; exit 1", {1, "last", true}},
        {"printf ' \\033[31mred\\r\\n' >&2; exit 1", {1, "\u241B[31mred", true}},
        {"printf 'a\\377b' >&2; exit 1", {1, "a\uFFFDb", true}},
        {"printf 'last\\n' >&2; head -c 300000 /dev/zero | tr '\\0' '\\n' >&2; exit 1",
         {1, "last", true}},
        {"head -c 300000 /dev/zero | tr '\\0' x >&2; exit 1", {1, std::string(1024, 'x'), true}},
        {"head -c 200000000 /dev/zero >&2; echo >&2; echo last >&2; exit 7", {7, "last", true}},
        {"echo noise >&2; kill -KILL $$", {137, "Signal 9 (Killed) ended the script."}},
        // Who closes the error output is still waited for.
        {"exec 2>&-; i=0; while [ $i -lt 20000 ]; do i=$((i+1)); done; exit 5",
         {5, "The script failed with exit status 5 and gave no reason."}},
    };
    for (const auto& [source, error] : cases)
        EXPECT_EQ(run(source), error) << source;
}

TEST_F(ScriptRunnerTest, theInterpreterOfTheFirstLineGetsTheWholeTextAndOneArgument) {
    const fs::path target = home / "with a blank";
    fs::create_directory(target);
    const std::string source = "#!/bin/cp --target-directory=" + target.string() + "\nany text";
    EXPECT_FALSE(run(source));
    ASSERT_EQ(namesIn(target).size(), 1U);
    EXPECT_EQ(get(target / *namesIn(target).begin()), source);
}

TEST_F(ScriptRunnerTest, whatCannotBeStartedSaysWhyAndNamesTheInterpreter) {
    struct Case {
        std::string source;
        int number;
        std::string_view named;
        std::string_view reason;
    };
    put(home / "plain", "x");
    const Case cases[] = {
        {"#!/no/such/interpreter -x\n", ENOENT, "/no/such/interpreter", "no such file"},
        {"#!" + (home / "plain").string(), EACCES, "plain", "permission"},
        {"echo a\0b"s, EINVAL, "NUL", "cannot be run"},
    };
    for (const auto& [source, number, named, reason] : cases) {
        const auto error = run(source);
        ASSERT_TRUE(error) << source;
        EXPECT_EQ(error->number, number);
        EXPECT_THAT(error->message, AllOf(HasSubstr(named), HasSubstr(reason)));
    }
}

TEST_F(ScriptRunnerTest, theScriptInheritsNothingOfThisProcess) {
    const int leaky = ::open("/dev/null", O_RDONLY); // inheritable on purpose
    const auto before = namesIn("/proc/self/fd").size();
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &blocked, nullptr);

    // The shell keeps the script itself open, so a fresh program looks at its own descriptors.
    EXPECT_EQ(resultOf("ls /proc/self/fd > " + result()), "0\n1\n2\n3\n");
    EXPECT_EQ(resultOf("readlink /proc/self/fd/0 > " + result()), "/dev/null\n");
    EXPECT_THAT(resultOf("grep -E 'Sig(Blk|Ign)' /proc/$$/status | cut -f2 > " + result()),
                "0000000000000000\n0000000000000000\n");
    EXPECT_EQ(resultOf("pwd > " + result()), std::string(std::getenv("HOME")) + "\n");
    // It leads a session of its own, without a terminal.
    EXPECT_EQ(resultOf("read -r all </proc/$$/stat; set -- ${all##*)};"
                       "echo $(($3 == $$)) $(($4 == $$)) $5 > " +
                       result()),
              "1 1 0\n");

    ::sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
    std::signal(SIGPIPE, SIG_DFL);
    EXPECT_EQ(namesIn("/proc/self/fd").size(), before);
    ::close(leaky);
}

TEST_F(ScriptRunnerTest, aBackgroundJobThatHoldsTheErrorOutputIsNotWaitedFor) {
    const std::string pidFile = result();
    EXPECT_EQ(run("sleep 1000 & echo $! > " + pidFile + "; echo last >&2; exit 2"),
              (ScriptError{2, "last", true}));
    const pid_t job = std::stoi(get(pidFile));
    EXPECT_EQ(::kill(job, 0), 0) << "it goes on living";
    PosixProcessControl().kill(job);
}

TEST_F(ScriptRunnerTest, stoppingEndsTheWholeGroupAndTheCopyGoes) {
    const std::string tellPid = "echo $$ > " + result() + "; ";
    const std::pair<std::string, int> cases[] = {
        {tellPid + "exec sleep 1000", 128 + SIGTERM},
        {"sleep 1000 & " + tellPid + "wait", 128 + SIGTERM},
        {"trap '' TERM; " + tellPid + "while :; do sleep 1000; done", 128 + SIGKILL},
        {"(trap '' TERM; sleep 1000) & " + tellPid + "trap 'exit 5' TERM; wait", 5}};
    for (const auto& [source, number] : cases) {
        fs::remove(result());
        std::future<Result> ended;
        const auto script = start(source, ended);
        const pid_t group = leader();
        script->stop();
        script->stop();
        EXPECT_EQ(ended.get()->number, number) << source;
        waitForEndOfGroup(group);
        EXPECT_THAT(namesIn(scripts()), IsEmpty());
    }
}

TEST_F(ScriptRunnerTest, neitherTheGroupNorTheCopyOutlivesTheRunOrAKilledProcess) {
    for (const bool killed : {false, true}) {
        fs::remove(result());
        const pid_t child = ::fork();
        if (child == 0) {
            std::atomic<int> told = 0;
            auto script = runner.start("sleep 1000 & echo $$ > " + result() + "; exec sleep 1000",
                                       [&](const Result& /*error*/) { ++told; });
            static_cast<void>(leader());
            while (killed)
                ::pause();
            script.reset();
            ::_exit(told);
        }
        const pid_t group = leader();
        if (killed)
            ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(WIFEXITED(status) && WEXITSTATUS(status) == 0, !killed);
        waitForEndOfGroup(group);
        while (!namesIn(scripts()).empty())
            std::this_thread::yield();
    }
}

TEST_F(ScriptRunnerTest, aLackOfDescriptorsIsNamedWhereverItShows) {
    EXPECT_TRUE(holdsInChild([this] {
        // However many were inherited, pipes have to be moved to higher numbers one end at a time.
        for (int taken = 0; taken <= 4; ++taken)
            static_cast<void>(::dup(STDERR_FILENO));
        const auto open = namesIn("/proc/self/fd").size();
        rlimit before{};
        ::getrlimit(RLIMIT_NOFILE, &before);
        for (rlim_t spare = 0; spare < 16; ++spare) {
            const rlimit limit{open + spare, before.rlim_max};
            ::setrlimit(RLIMIT_NOFILE, &limit);
            const auto error = run("true");
            ::setrlimit(RLIMIT_NOFILE, &before);
            if (error && error->number != EMFILE)
                return false;
        }
        return true;
    }));
}

using ProcessControlTest = PosixHarness;

TEST_F(ProcessControlTest, endsOneProcessAtOnceAndNoGroup) {
    PosixProcessControl control;
    EXPECT_TRUE(holdsInChild([&] {
        static_cast<void>(std::atexit([] { ::_exit(1); })); // what still runs is not destroyed
        control.exit(0);
        return false;
    }));
    EXPECT_TRUE(holdsInChild([&] {
        ::setsid(); // a kill of the whole group would end this child alone
        control.kill(0);
        return true;
    }));
    EXPECT_FALSE(holdsInChild([&] {
        control.kill(::getpid());
        return true;
    }));
}

} // namespace
} // namespace zarvil::posix
