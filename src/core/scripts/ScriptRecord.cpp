#include "scripts/ScriptRecord.h"

#include "interface/DisplayText.h"
#include "scripts/ScriptFile.h"

namespace zarvil {

namespace {

std::size_t titleHash(std::string_view title) { return std::hash<std::string_view>{}(title); }

bool hasTitle(const Record& record, std::string_view title) {
    const std::string* listed = record->stringForKey(script::title);
    return listed && *listed == title;
}

} // namespace

std::size_t scriptHash(const MutableRecord& script) {
    const std::string* title = script.stringForKey(script::title);
    return title ? titleHash(*title) : 0;
}

std::string scriptSortKey(const MutableRecord& script) {
    const std::string* title = script.stringForKey(script::title);
    return title ? naturalSortKey(*title) : std::string();
}

Record scriptOfTitle(const ArrayController& scripts, std::string_view title) {
    return scripts.firstOfHash(titleHash(title),
                               [title](const Record& record) { return hasTitle(record, title); });
}

Record onlyScriptOfTitle(const ArrayController& scripts, std::string_view title) {
    const Record first = scriptOfTitle(scripts, title);
    const Record another =
        scripts.firstOfHash(titleHash(title), [&first, title](const Record& record) {
            return record != first && hasTitle(record, title);
        });
    return another ? nullptr : first;
}

} // namespace zarvil
