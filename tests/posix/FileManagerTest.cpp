#include "PosixHarness.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace zarvil::posix {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using FileManagerTest = PosixHarness;

constexpr auto direct = Atomicity::Direct;
constexpr auto atomic = Atomicity::Atomic;

TEST_F(FileManagerTest, onlyALeadingTildeOfItsOwnIsExpanded) {
    EXPECT_EQ(files.expandingTilde("~/Library"), home / "Library");
    EXPECT_EQ(files.expandingTilde("~"), home);
    for (const std::string_view path : {"~other/x", "/a/~/b", "", "~~"})
        EXPECT_EQ(files.expandingTilde(path), path);
    EXPECT_EQ(PosixFileManager(strings, "/").expandingTilde("~/x"), "/x");
}

TEST_F(FileManagerTest, errorsSpeakTheLanguageOfTheStringTable) {
    strings.translations = {{"Could not remove “%1”: %2.", "%2 – „%1“"},
                            {"there is no such file or folder", "gibt es nicht"}};
    EXPECT_EQ(files.removeItem("/nowhere")->description, "gibt es nicht – „/nowhere“");
}

TEST_F(FileManagerTest, readsExactlyWhatIsUtf8) {
    struct Case {
        std::string bytes;
        bool readable;
    };
    const Case cases[] = {
        {"", true},
        {"plain\r\n\ttext", true},
        {"\u00e9\u20ac\U0001F50C\U0010FFFF", true},
        {"\xFF", false},
        {"cut \xE2\x82", false},
        {"\xC0\x80", false},         // overlong NUL
        {"\xED\xA0\x80", false},     // surrogate
        {"\xF4\x90\x80\x80", false}, // beyond Unicode
    };
    for (const auto& [bytes, readable] : cases) {
        put(script("x"), bytes);
        const auto text = files.readText(script("x").string());
        EXPECT_EQ(text, readable ? std::optional(bytes) : std::nullopt)
            << testing::PrintToString(bytes);
    }
}

TEST_F(FileManagerTest, whatIsNoFileReadsAsNothingAndBlocksNothing) {
    fs::create_directory(script("folder"));
    fs::create_symlink("nowhere", script("dangling"));
    ASSERT_EQ(::mkfifo(script("pipe").c_str(), 0600), 0);
    for (const std::string_view name : {"folder", "dangling", "pipe", "absent"})
        EXPECT_EQ(files.readText(script(name).string()), std::nullopt) << name;
    EXPECT_EQ(files.readText("/dev/zero"), std::nullopt);
    EXPECT_TRUE(files.writeText("x", script("pipe").string(), direct));
    EXPECT_EQ(files.kindOfItem(script("dangling").string()), FileKind::Missing);
    EXPECT_EQ(files.kindOfItem(script("pipe").string()), FileKind::Other);
}

TEST_F(FileManagerTest, listsWhatIsVisibleUnderAnyName) {
    for (const std::string_view name : {"a", ".hidden", "new\nline", "\xFF.raw", "..x"})
        put(script(name), "");
    fs::create_directory(script("folder"));
    fs::create_symlink("nowhere", script("dangling"));
    EXPECT_THAT(files.visibleContentsOfDirectory(scripts().string()),
                UnorderedElementsAre("a", "new\nline", "\xFF.raw", "folder", "dangling"));
    EXPECT_THAT(files.visibleContentsOfDirectory(script("a").string()), IsEmpty());
    EXPECT_THAT(files.visibleContentsOfDirectory(script("absent").string()), IsEmpty());
}

TEST_F(FileManagerTest, bothWaysOfWritingReplaceTheWholeContentAndKeepTheMode) {
    for (const Atomicity atomicity : {direct, atomic}) {
        const auto path = script("x");
        const std::string first(50 << 20, 'x');
        ASSERT_EQ(files.writeText(first, path.string(), atomicity), std::nullopt);
        EXPECT_TRUE(files.readText(path.string()) == first);
        EXPECT_EQ(fs::status(path).permissions(), fs::perms{0600}) << "new: its owner's alone";
        ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
        ASSERT_EQ(files.writeText("short", path.string(), atomicity), std::nullopt);
        EXPECT_EQ(get(path), "short");
        EXPECT_EQ(fs::status(path).permissions(), fs::perms{0640});
        EXPECT_THAT(namesIn(scripts()), ElementsAre("x"));
        fs::remove(path);
    }
}

TEST_F(FileManagerTest, aReplacementKeepsTheFormerItemUntilItsSuccessorIsSafe) {
    struct Case {
        std::string former, path;
        int removal, write;
        std::set<std::string> left;
    };
    const Case cases[] = {
        {"x", "y", 0, 0, {"y", "dir", "link"}},
        {"x", "x", 0, 0, {"x", "dir", "link"}},
        {"x", "./x", 0, 0, {"x", "dir", "link"}},
        {"x", "link/../x", 0, 0, {"x", "dir", "link"}},
        {"absent", "y", ENOENT, 0, {"x", "y", "dir", "link"}},
        {"absent", "no/y", ENOENT, ENOENT, {"x", "dir", "link"}},
        {"x", "no/y", 0, ENOENT, {"x", "dir", "link"}},
        {"x", "dir", 0, EISDIR, {"x", "dir", "link"}},
        {"x", "nul\0"s, 0, EINVAL, {"x", "dir", "link"}},
        {"nul\0"s, "y", EINVAL, 0, {"x", "y", "dir", "link"}},
        {"x", std::string(300, 'n'), 0, ENAMETOOLONG, {"x", "dir", "link"}},
        {"dir", "dir", 0, 0, {"x", "dir", "link"}},
        {"dir", "y", 0, 0, {"x", "y", "link"}},
        {"dir", "dir/y", 0, ENOENT, {"x", "dir", "link"}},
        {"dir", "link/y", 0, ENOENT, {"x", "dir", "link"}},
        {"link", "y", 0, 0, {"x", "y", "dir"}},
    };
    for (const Case& c : cases) {
        fs::remove_all(scripts());
        fs::create_directories(script("dir"));
        put(script("dir/kept"), "kept");
        fs::create_directory_symlink("dir", script("link"));
        put(script("x"), "old");
        ASSERT_EQ(::chmod(script("x").c_str(), 0640), 0);
        const std::string folder = script("").string();
        const Replacement outcome = files.replaceItem(folder + c.former, "new", folder + c.path);
        const std::string name = c.former + " by " + c.path;
        EXPECT_EQ(outcome.removal ? outcome.removal->code : 0, c.removal) << name;
        EXPECT_EQ(outcome.write ? outcome.write->code : 0, c.write) << name;
        EXPECT_EQ(namesIn(scripts()), c.left) << name;
        const std::string kept = get(script("x")) + get(script("dir/kept"));
        EXPECT_EQ(c.write == 0 ? get(script(c.path)) : kept, c.write == 0 ? "new" : "oldkept")
            << name;
        if (c.write == 0 && c.former == "x") {
            EXPECT_EQ(fs::status(script(c.path)).permissions(), fs::perms{0640}) << name;
        }
    }
}

TEST_F(FileManagerTest, anAtomicWriteReplacesALinkNotWhatItLeadsTo) {
    put(home / "precious", "kept");
    fs::create_symlink(home / "precious", script("x"));
    ASSERT_EQ(files.writeText("new", script("x").string(), atomic), std::nullopt);
    EXPECT_EQ(get(home / "precious"), "kept");
    EXPECT_EQ(get(script("x")), "new");
    EXPECT_FALSE(fs::is_symlink(script("x")));
}

TEST_F(FileManagerTest, aNameThatCannotBeWrittenGivesOneSentenceWithPathAndReason) {
    struct Case {
        std::string name;
        int code;
        std::string_view reason;
    };
    put(script("file"), "");
    fs::create_directory(script("folder"));
    const Case cases[] = {
        {"missing/x", ENOENT, "no such file or folder"},
        {"file/x", ENOTDIR, "not a folder"},
        {std::string(300, 'n'), ENAMETOOLONG, "too long"},
        {"folder", EISDIR, "is a folder"},
        {"nul\0x"s, EINVAL, "not allowed"},
    };
    for (const auto& [name, code, reason] : cases) {
        for (const Atomicity atomicity : {direct, atomic}) {
            const auto error = files.writeText("text", script("").string() + name, atomicity);
            ASSERT_TRUE(error) << name;
            EXPECT_EQ(error->domain, "NSCocoaErrorDomain");
            EXPECT_EQ(error->code, code) << error->description;
            EXPECT_THAT(error->description, HasSubstr(reason));
            EXPECT_THAT(error->description, HasSubstr(name.substr(0, 3)));
        }
    }
    EXPECT_EQ(files.createDirectory(script("file").string())->code, EEXIST);
    EXPECT_THAT(namesIn(scripts()), ElementsAre("file", "folder"));
}

TEST_F(FileManagerTest, removalTakesALinkItselfAndAFolderWithItsContents) {
    put(home / "precious/kept", "");
    fs::create_directory(home / "precious");
    put(home / "precious/kept", "");
    fs::create_directories(script("folder/deep"));
    fs::create_directory_symlink(home / "precious", script("folder/deep/link"));
    fs::create_directory_symlink(home / "precious", script("link"));
    fs::create_symlink("nowhere", script("dangling"));
    for (const std::string_view name : {"folder", "link", "dangling"})
        EXPECT_EQ(files.removeItem(script(name).string()), std::nullopt) << name;
    EXPECT_THAT(namesIn(scripts()), IsEmpty());
    EXPECT_TRUE(fs::exists(home / "precious/kept"));
    EXPECT_EQ(files.removeItem(script("absent").string())->code, ENOENT);
    EXPECT_EQ(files.removeItem("nul\0x"s)->code, EINVAL);
}

TEST_F(FileManagerTest, aReadOnlyFolderRefusesEveryChangeAndLosesNothing) {
    put(script("x"), "old");
    fs::create_directory(script("folder"));
    put(script("folder/kept"), "");
    // Who may empty a folder but not remove it leaves it whole.
    fs::permissions(script("folder"), fs::perms::all);
    ASSERT_EQ(::chmod(scripts().c_str(), 0555), 0);
    EXPECT_TRUE(holdsInChild([&] {
        if (!becomeOrdinaryUser())
            return false;
        const auto refused = [](const std::optional<Error>& error) {
            return error && error->code == EACCES &&
                   error->description.ends_with("you do not have permission.");
        };
        return refused(files.writeText("new", script("x").string(), atomic)) &&
               refused(files.writeText("", script("y").string(), direct)) &&
               refused(files.replaceItem(script("x").string(), "", script("y").string()).removal) &&
               refused(files.removeItem(script("x").string())) &&
               refused(files.removeItem(script("folder").string())) &&
               refused(files.removeItem(script("folder").string() + "//")) &&
               refused(files.createDirectory(script("z").string()));
    }));
    EXPECT_EQ(get(script("x")), "old");
    EXPECT_THAT(namesIn(scripts()), UnorderedElementsAre("x", "folder"));
    EXPECT_TRUE(fs::exists(script("folder/kept")));
    ::chmod(scripts().c_str(), 0755);
}

TEST_F(FileManagerTest, aFileThatOutgrowsTheLimitLeavesTheOldOneAndNoRemains) {
    put(script("x"), "old");
    EXPECT_TRUE(holdsInChild([&] {
        const rlimit limit{4096, 4096};
        std::signal(SIGXFSZ, SIG_IGN);
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return false;
        const std::string text(1 << 20, 't');
        const auto saved = files.writeText(text, script("x").string(), atomic);
        const auto created = files.writeText(text, script("y").string(), direct);
        const auto renamed = files.replaceItem(script("x").string(), text, script("z").string());
        return saved && saved->code == EFBIG && created && created->code == EFBIG &&
               !renamed.removal && renamed.write && renamed.write->code == EFBIG;
    }));
    EXPECT_EQ(get(script("x")), "old");
    EXPECT_THAT(namesIn(scripts()), ElementsAre("x"));
}

} // namespace
} // namespace zarvil::posix
