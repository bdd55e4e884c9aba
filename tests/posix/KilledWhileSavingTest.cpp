#include "PaneOnFakes.h"
#include "PosixHarness.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <random>
#include <sys/prctl.h>

namespace zarvil::posix {
namespace {

using testing::ElementsAre;

/// Kills a process that saves over and over, at random moments.
class KilledWhileSaving : public PosixHarness {
protected:
    void save(std::string_view text) {
        const auto item = disk.pane.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(0);
        item->edit();
        item->eText()->userDidEdit(text);
        item->edit();
    }

    PaneOnFakes disk{&files};
    static constexpr int rounds = 220;
    inline static const std::string first = std::string(300000, 'a');
    inline static const std::string second = std::string(200000, 'b');

    void killRepeatedly() {
        const auto start = std::chrono::steady_clock::now();
        save(first);
        const std::chrono::duration<double> oneSave = std::chrono::steady_clock::now() - start;
        std::mt19937 random(20260);
        std::uniform_real_distribution<double> moments(0, 2 * oneSave.count());
        int leftovers = 0;
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            killOneAfter(std::chrono::duration<double>(moments(random)));
            leftovers += fs::exists(script(".zarvil-save")) ? 1 : 0;
            expectOnlyWholeTexts();
        }
        EXPECT_GT(leftovers, 0) << "no process was killed in the middle of a save";
    }
    void expectOnlyWholeTexts() {
        for (const std::string& name : files.visibleContentsOfDirectory(scripts().string())) {
            EXPECT_EQ(name, "a.zvscript");
            const std::string text = get(script(name));
            EXPECT_TRUE(text == first || text == second) << text.size() << " bytes";
        }
        EXPECT_LE(namesIn(scripts()).size(), 2U) << "leftovers pile up";
    }
    void killOneAfter(std::chrono::duration<double> moment) {
        int started[2];
        ASSERT_EQ(::pipe(started), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            static_cast<void>(!::write(started[1], "s", 1));
            while (true) {
                save(second);
                save(first);
            }
        }
        char byte = 0;
        static_cast<void>(!::read(started[0], &byte, 1));
        const auto end = std::chrono::steady_clock::now() + moment;
        while (std::chrono::steady_clock::now() < end) {
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(started[0]);
        ::close(started[1]);
    }
};

TEST_F(KilledWhileSaving, thePaneNeverLeavesAHalfWrittenScript) {
    put(script("a.zvscript"), first);
    disk.pane.loadScripts();
    killRepeatedly();
    save(first);
    EXPECT_THAT(namesIn(scripts()), ElementsAre("a.zvscript"));
}

} // namespace
} // namespace zarvil::posix
