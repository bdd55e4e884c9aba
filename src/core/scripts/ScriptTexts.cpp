#include "scripts/ScriptTexts.h"

#include "scripts/ScriptFile.h"

namespace zarvil {

/// The texts of a folder's scripts, whose records note the names of their files.
class ScriptFolder final : public LateEntry {
public:
    ScriptFolder(const FileManager& files, std::string path)
        : files_(files), path_(std::move(path)) {}

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string_view key() const override { return script::text; }
    [[nodiscard]] Value fetch(const std::string& fileName) const override {
        const std::string path = path_ + "/" + fileName;
        return script::withoutByteOrderMark(files_.readText(path).value_or(""));
    }

private:
    const FileManager& files_;
    std::string path_;
};

Record ScriptTexts::makeScript(const std::string& folder, std::string fileName) {
    if (!folder_ || folder_->path() != folder)
        folder_ = std::make_shared<ScriptFolder>(files_, folder);
    std::string title = script::titleOfFile(fileName);
    Dictionary::Entries entries;
    entries.reserve(2);
    entries.push_back({std::string(script::text), std::move(fileName)});
    entries.push_back({std::string(script::title), std::move(title)});
    auto record =
        std::make_shared<MutableRecord>(Dictionary::ofEntries(std::move(entries)), folder_);
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
