#include "scripts/ScriptTexts.h"

#include "scripts/ScriptFile.h"

namespace zarvil {

/// Shared by its scripts, of which there may be thousands.
struct ScriptFolder {
    const FileManager& files;
    std::string path;
};

namespace {

class TextInFile final : public LateEntry {
public:
    TextInFile(std::shared_ptr<const ScriptFolder> folder, std::string fileName)
        : folder_(std::move(folder)), fileName_(std::move(fileName)) {}

    [[nodiscard]] std::string_view key() const override { return script::text; }
    [[nodiscard]] Value fetch() const override {
        const std::string path = folder_->path + "/" + fileName_;
        return script::withoutByteOrderMark(folder_->files.readText(path).value_or(""));
    }

private:
    std::shared_ptr<const ScriptFolder> folder_;
    std::string fileName_;
};

Dictionary contentsOfScript(std::string title) {
    Dictionary::Entries entries;
    entries.reserve(2);
    entries.push_back({std::string(script::text), ""});
    entries.push_back({std::string(script::title), std::move(title)});
    return Dictionary::ofEntries(std::move(entries));
}

} // namespace

Record ScriptTexts::makeScript(const std::string& folder, std::string fileName) {
    if (!folder_ || folder_->path != folder)
        folder_ = std::make_shared<ScriptFolder>(ScriptFolder{files_, folder});
    Dictionary contents = contentsOfScript(script::titleOfFile(fileName));
    auto record = std::make_shared<MutableRecord>(
        std::move(contents), std::make_unique<TextInFile>(folder_, std::move(fileName)));
    unread_.push_back(record);
    if (!next_)
        next_ = timers_.schedule(0, Repetition::Once, [this] { readSome(); });
    return record;
}

void ScriptTexts::readAll() {
    while (!unread_.empty())
        readNext();
    next_.reset();
}

void ScriptTexts::readSome() {
    constexpr int atATime = 64; // takes about a millisecond
    for (int count = 0; count < atATime && !unread_.empty(); ++count)
        readNext();
    next_ =
        unread_.empty() ? nullptr : timers_.schedule(0, Repetition::Once, [this] { readSome(); });
}

void ScriptTexts::readNext() {
    if (const Record record = unread_.front().lock())
        record->fetchLateEntry();
    unread_.pop_front();
}

} // namespace zarvil
