#include "FailingCalls.h"
#include "Input.h"
#include "PaneOnFakes.h"
#include "posix/PosixFileManager.h"
#include "protocol/Messages.h"
#include "scripts/ScriptFile.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Scripts of any names edited on a real folder whose system fails now and then. Every text bears a
/// number of its own; whatever fails, none that the user still has a right to is gone both from the
/// disk and from the cards.
namespace zarvil::fuzz {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostSteps = 24;

const fs::path& home() {
    static const fs::path folder = [] {
        const fs::path memory = "/dev/shm";
        std::string path =
            ((fs::is_directory(memory) ? memory : fs::temp_directory_path()) / "zarvil-fuzz-XXXXXX")
                .string();
        require(::mkdtemp(path.data()) != nullptr, "a folder is made");
        static const std::string made = path;
        std::atexit([] { fs::remove_all(made); });
        return fs::path(path);
    }();
    return folder;
}

fs::path scriptsFolder() { return home() / "Library/Zarvil Scripts"; }

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What is on the disk, by path.
std::map<fs::path, std::string> disk() {
    std::map<fs::path, std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(home()))
        if (entry.is_regular_file())
            found[entry.path()] = contentOf(entry.path());
    return found;
}

class Trial {
public:
    explicit Trial(Input& input) : input_(input) {
        fs::remove_all(home() / "Library");
        fs::create_directories(scriptsFolder());
        for (std::size_t count = input_.below(4); count > 0; --count)
            put(anyName() + (input_.flag() ? ".zvscript" : ".txt"));
        world_.pane.mainViewDidLoad();
        world_.pane.willSelect();
        world_.pane.createNewScript.setAction("create:");
        send(message::savedPrefs, Dictionary{{"UseScripts", true}});
        send(message::pingAnswer, {});
    }

    void run() {
        for (std::size_t count = 0; count < mostSteps && !input_.empty(); ++count)
            step();
    }

private:
    using Item = std::shared_ptr<ZVScriptCollectionItem>;

    std::string anyName() {
        static constexpr std::array<std::string_view, 12> names{
            "a", "b",        "a.b",  ".hidden",    "c/d", "..",
            " ", "\xC3\xA4", "\xFF", "line\nfeed", "A",   "x/"};
        const std::uint8_t choice = input_.byte();
        if (choice < 8)
            return std::string(200 + choice * 8U, 'n');
        if (choice < 32)
            return input_.text(8);
        return std::string(names.at(choice % names.size()));
    }
    /// In brackets, so that no text is a part of another.
    std::string newText() { return "[" + std::to_string(++texts_) + "]"; }

    void put(const std::string& name) {
        if (!name.starts_with("..") && name.find('/') == std::string::npos)
            std::ofstream(scriptsFolder() / name, std::ios::binary) << newText();
    }

    void send(std::string_view name, const Dictionary& info) {
        world_.bus.post(Message(name, info));
        world_.bus.deliver();
    }

    std::vector<Item> items() {
        std::vector<Item> all;
        const std::size_t count = world_.pane.scriptsArrayController.arrangedObjects().size();
        for (std::size_t index = 0; index < count; ++index)
            all.push_back(
                world_.pane.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(index));
        return all;
    }

    /// A card that has a record: of equal scripts only the first has.
    Item anyItem() {
        auto all = items();
        std::erase_if(all, [](const Item& item) { return !item || !item->data(); });
        return all.empty() ? nullptr : all.at(input_.below(all.size()));
    }

    void step() {
        const std::uint8_t fault = input_.byte();
        switch (input_.below(8)) {
        case 0:
            create(fault);
            break;
        case 1:
        case 2:
        case 3:
            edit(fault);
            break;
        case 4:
            remove(fault);
            break;
        case 5:
            loseAgent(fault);
            break;
        case 6:
            type();
            break;
        default:
            upsetFolder();
        }
    }

    /// Lets a call fail in the course of what is done, if the fault says so.
    template <typename Act>
    void withFault(std::uint8_t fault, const Act& act) {
        if (fault % 4 != 0)
            failing::arm(1 + fault / 16, fault % failing::errorsOfACall);
        act();
        failing::disarm();
    }

    void create(std::uint8_t fault) {
        const std::string title = anyName();
        const auto before = disk();
        withFault(fault, [&] {
            world_.pane.scriptsTitle.userDidEdit(title);
            world_.pane.createNewScript.performClick();
        });
        // A file of that name that is not listed, or under another title, is emptied; all others
        // stay.
        checkKept(before, {script::filePath(world_.disk, title)}, {});
    }

    void edit(std::uint8_t fault) {
        const Item item = anyItem();
        if (!item)
            return;
        if (!item->editing())
            item->edit();
        const std::string title = input_.flag() ? anyName() : item->eTitle()->stringValue();
        const std::string text = newText();
        item->eTitle()->userDidEdit(title);
        item->eText()->userDidEdit(text);
        const auto before = disk();
        const std::string formerPath = pathOf(*item);
        const std::size_t alerts = world_.errors.presented.size();
        withFault(fault, [&] { item->edit(); });
        const std::string* listed = item->data()->stringForKey(script::title);
        const std::string path = script::filePath(world_.disk, *listed);
        const auto after = disk();
        const auto written = after.find(canonical(path));
        const bool saved = written != after.end() && written->second == text;
        // On the disk, or on the card, which says so.
        require(saved || !item->noteProperty().get().caption.empty(), "what is not saved is noted");
        require(saved || *item->data()->stringForKey(script::text) == text,
                "a text that is not saved is on its card");
        require(saved || world_.errors.presented.size() <= alerts + 1, "one alert at the most");
        checkKept(before, saved ? std::set<std::string>{path, formerPath} : std::set<std::string>{},
                  after);
    }

    void remove(std::uint8_t fault) {
        const Item item = anyItem();
        if (!item)
            return;
        const auto before = disk();
        const std::string path = pathOf(*item);
        const std::size_t alerts = world_.errors.presented.size();
        withFault(fault, [&] { item->remove(); });
        const auto after = disk();
        require(world_.errors.presented.size() > alerts || !after.contains(canonical(path)),
                "a script that could not be removed is told of");
        checkKept(before, {path}, after);
    }

    /// Types and leaves the card open.
    void type() {
        const Item item = anyItem();
        if (!item)
            return;
        if (!item->editing())
            item->edit();
        item->eText()->userDidEdit(newText());
    }

    /// The agent is gone for a while: the cards go and come back with all that was typed.
    void loseAgent(std::uint8_t fault) {
        std::vector<std::string> typed;
        for (const Item& item : items())
            if (const auto draft = item ? item->draft() : std::nullopt)
                if (!draft->text.empty() && draft->text != *draft->saved.stringForKey(script::text))
                    typed.push_back(draft->text);
        world_.time.advance(6);
        require(items().empty(), "no cards without an agent");
        withFault(fault, [&] { send(message::pingAnswer, {}); });
        const auto found = disk();
        const auto all = items();
        for (const std::string& text : typed) {
            const bool isBack = std::ranges::any_of(all, [&](const Item& item) {
                const auto draft = item ? item->draft() : std::nullopt;
                return draft && draft->text == text;
            });
            const bool isSaved =
                std::ranges::any_of(found, [&](const auto& entry) { return entry.second == text; });
            require(isBack || isSaved, "what was typed comes back on a card");
        }
    }

    void upsetFolder() {
        if (input_.flag())
            put(anyName() + ".zvscript");
        else
            fs::permissions(scriptsFolder(), input_.flag() ? fs::perms{0555} : fs::perms{0755});
    }

    static fs::path canonical(const std::string& path) {
        std::error_code ignored;
        if (path.find('\0') != std::string::npos)
            return {};
        return fs::weakly_canonical(path, ignored);
    }

    /// Where the script of a card is; nowhere if it is not saved and another is listed there.
    std::string pathOf(const ZVScriptCollectionItem& item) {
        const auto pathOfTitle = [this](const std::string* title) {
            return title ? script::filePath(world_.disk, *title) : std::string();
        };
        const auto draft = item.draft();
        std::string path = pathOfTitle(
            (draft ? draft->saved : item.data()->contents()).stringForKey(script::title));
        const bool isUnsaved = !item.noteProperty().get().caption.empty();
        const auto isAnothers = [&](const Record& listed) {
            return listed != item.data() &&
                   pathOfTitle(listed->stringForKey(script::title)) == path;
        };
        return isUnsaved && std::ranges::any_of(
                                world_.pane.scriptsArrayController.arrangedObjects(), isAnothers)
                   ? std::string()
                   : path;
    }

    /// Every text that was on the disk is there still, but those of the paths that may go.
    void checkKept(const std::map<fs::path, std::string>& before,
                   const std::set<std::string>& mayGo, std::map<fs::path, std::string> after) {
        if (after.empty())
            after = disk();
        std::set<fs::path> exempt;
        for (const std::string& path : mayGo)
            exempt.insert(canonical(path));
        for (const auto& [path, text] : before) {
            if (exempt.contains(path) || text.empty() || path.filename() == ".zarvil-save")
                continue;
            const auto kept = after.find(path);
            require(kept != after.end() && kept->second == text, "a script's text is kept");
        }
    }

    Input& input_;
    fake::StringTable strings_;
    posix::PosixFileManager files_{strings_, home().string()};
    PaneOnFakes world_{&files_};
    int texts_ = 0;
};

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    zarvil::fuzz::Input input(bytes, size);
    zarvil::fuzz::Trial(input).run();
    return 0;
}
