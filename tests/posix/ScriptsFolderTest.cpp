#include "PaneOnFakes.h"
#include "PosixHarness.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <sys/prctl.h>

namespace zarvil::posix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A pane over fakes, but for the file system.
struct PaneOnDisk : PaneOnFakes {
    using PaneOnFakes::PaneOnFakes;

    std::shared_ptr<ZVScriptCollectionItem> item(std::string_view title) {
        const auto& records = pane.scriptsArrayController.arrangedObjects();
        for (std::size_t index = 0; index < records.size(); ++index) {
            if (*records[index]->contents().stringForKey(script::title) == title)
                return pane.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(index);
        }
        return nullptr;
    }
    std::vector<std::string> titles() const {
        std::vector<std::string> all;
        for (const Record& record : pane.scriptsArrayController.arrangedObjects())
            all.push_back(*record->contents().stringForKey(script::title));
        return all;
    }
    void reload() {
        pane.unloadScripts();
        pane.loadScripts();
    }
    void create(std::string_view title) {
        pane.scriptsTitle.setStringValue(title);
        pane.create(nullptr);
    }
    void edit(std::string_view title, std::string_view newTitle, std::string_view text) {
        const auto script = item(title);
        script->edit();
        script->eTitle()->userDidEdit(newTitle);
        script->eText()->userDidEdit(text);
        script->edit();
    }
};

class ScriptsFolder : public PosixHarness {
protected:
    PaneOnDisk disk{&files};
};

TEST_F(ScriptsFolder, titlesOfEveryKindAreCreatedOrRefusedWithAReason) {
    struct Case {
        std::string title;
        std::string file; ///< empty when it is refused
    };
    put(script("Upper.zvscript"), "kept");
    disk.reload();
    const Case cases[] = {
        {"missing/x", ""},
        {std::string(300, 'n'), ""},
        {"..", "...zvscript"},
        {"two\nlines", "two\nlines.zvscript"},
        {"   ", "   .zvscript"},
        {"upper", "upper.zvscript"},
        {"\U0001F50C", "\U0001F50C.zvscript"},
        {"../outside", "../outside.zvscript"},
        {"", ""},
    };
    for (const auto& [title, file] : cases) {
        disk.errors.presented.clear();
        const std::size_t before = disk.titles().size();
        disk.create(title);
        EXPECT_EQ(disk.titles().size(), before + (file.empty() ? 0 : 1)) << title;
        EXPECT_EQ(disk.errors.presented.size(), file.empty() && !title.empty() ? 1U : 0U) << title;
        const fs::path made = file.empty() ? fs::path("/dev/null") : script(file);
        EXPECT_EQ(get(made), "") << title;
        EXPECT_TRUE(fs::exists(made)) << title;
    }
    EXPECT_EQ(get(script("Upper.zvscript")), "kept");
}

TEST_F(ScriptsFolder, foldersAndLinksAmongTheScriptsAreListedEmpty) {
    fs::create_directory(script("sub.d"));
    put(script("sub.d/inner"), "");
    fs::create_symlink("nowhere", script("dangling.zvscript"));
    put(script("raw.zvscript"), "\xFF\xFE");
    disk.reload();
    EXPECT_THAT(disk.titles(), UnorderedElementsAre("sub", "dangling", "raw"));
    for (const Record& record : disk.pane.scriptsArrayController.arrangedObjects())
        EXPECT_EQ(*record->contents().stringForKey(script::text), "");
    disk.item("dangling")->remove();
    disk.item("raw")->remove();
    EXPECT_THAT(disk.titles(), ElementsAre("sub"));
    EXPECT_THAT(disk.errors.presented, IsEmpty());
    EXPECT_THAT(namesIn(scripts()), ElementsAre("sub.d"));
}

TEST_F(ScriptsFolder, aByteOrderMarkIsNoPartOfTheText) {
    put(script("marked.zvscript"), "\xEF\xBB\xBF#!/bin/sh\n");
    disk.reload();
    disk.edit("marked", "renamed", "");
    EXPECT_EQ(get(script("renamed.zvscript")), "#!/bin/sh\n");
}

TEST_F(ScriptsFolder, aTitleThatNamesNoFileKeepsTheFormerOne) {
    put(script("a.zvscript"), "old");
    disk.reload();
    disk.edit("a", "no/such", "typed");
    EXPECT_EQ(get(script("a.zvscript")), "old");
    disk.edit("no/such", "b", "");
    EXPECT_EQ(get(script("b.zvscript")), "typed");
    EXPECT_THAT(namesIn(scripts()), ElementsAre("b.zvscript"));
    EXPECT_THAT(disk.errors.presented, IsEmpty());
}

TEST_F(ScriptsFolder, aFileInTheFoldersPlaceIsShownAndKept) {
    fs::remove(scripts());
    put(scripts(), "in the way");
    disk.reload();
    ASSERT_EQ(disk.errors.presented.size(), 1U);
    EXPECT_EQ(disk.errors.presented[0].code, EEXIST);
    EXPECT_EQ(get(scripts()), "in the way");
}

TEST_F(ScriptsFolder, aFolderThatVanishesKeepsTheScriptInTheListUntilItCanBeSaved) {
    put(script("a.zvscript"), "old");
    disk.reload();
    fs::remove_all(scripts());
    disk.edit("a", "a", "typed");
    EXPECT_EQ(disk.errors.presented.size(), 1U);
    EXPECT_FALSE(fs::exists(scripts()));
    fs::create_directory(scripts());
    disk.edit("a", "a", "typed again");
    EXPECT_EQ(get(script("a.zvscript")), "typed again");
}

TEST_F(ScriptsFolder, anotherProgramsChangesMeetTheSaveAsTheyStand) {
    for (const char* name : {"deleted.zvscript", "edited.zvscript", "turned.zvscript"})
        put(script(name), "old");
    disk.reload();
    fs::remove(script("deleted.zvscript"));
    put(script("edited.zvscript"), "by another program");
    fs::remove(script("turned.zvscript"));
    fs::create_directory(script("turned.zvscript"));
    put(script("added.zvscript"), "new");
    for (const char* title : {"deleted", "edited", "turned"}) {
        disk.edit(title, title, "mine");
        EXPECT_EQ(get(script(std::string(title) + ".zvscript")), "mine");
    }
    EXPECT_EQ(disk.errors.presented.size(), 1U);
    disk.reload();
    EXPECT_EQ(disk.titles().size(), 4U);
}

TEST_F(ScriptsFolder, aScriptOfFiftyMebibytesIsReadAndSavedWhole) {
    const std::string text(50 << 20, 'x');
    put(script("big.zvscript"), text);
    disk.reload();
    disk.edit("big", "bigger", text + "y");
    EXPECT_EQ(fs::file_size(script("bigger.zvscript")), text.size() + 1);
    EXPECT_FALSE(fs::exists(script("big.zvscript")));
}

/// Kills a process that saves over and over, at random moments.
class KilledWhileSaving : public ScriptsFolder {
protected:
    static constexpr int rounds = 220;
    inline static const std::string first = std::string(300000, 'a');
    inline static const std::string second = std::string(200000, 'b');

    void killRepeatedly() {
        const auto start = std::chrono::steady_clock::now();
        disk.edit("a", "a", first);
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
                disk.edit("a", "a", second);
                disk.edit("a", "a", first);
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
    disk.reload();
    killRepeatedly();
    disk.edit("a", "a", first);
    EXPECT_THAT(namesIn(scripts()), ElementsAre("a.zvscript"));
}

} // namespace
} // namespace zarvil::posix
