#include "scripts/ScriptTexts.h"

#include "scripts/ScriptFile.h"

namespace zarvil {

Record ScriptTexts::makeScript(std::string_view title, std::string path) {
    auto record = std::make_shared<MutableRecord>(
        Dictionary{{std::string(script::title), title}}, std::string(script::text),
        [&files = files_, path = std::move(path)] {
            return Value(script::withoutByteOrderMark(files.readText(path).value_or("")));
        });
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
