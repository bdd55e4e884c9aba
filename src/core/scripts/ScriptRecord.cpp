#include "scripts/ScriptRecord.h"

#include "interface/DisplayText.h"
#include "scripts/ScriptFile.h"

namespace zarvil {

namespace {

std::size_t titleHash(std::string_view title) { return std::hash<std::string_view>{}(title); }

} // namespace

std::size_t scriptHash(const MutableRecord& script) {
    const std::string* title = script.contents().stringForKey(script::title);
    return title ? titleHash(*title) : 0;
}

std::string scriptSortKey(const MutableRecord& script) {
    const std::string* title = script.contents().stringForKey(script::title);
    return title ? naturalSortKey(*title) : std::string();
}

Record scriptOfTitle(const ArrayController& scripts, std::string_view title) {
    return scripts.firstOfHash(titleHash(title), [title](const Record& record) {
        const std::string* listed = record->contents().stringForKey(script::title);
        return listed && *listed == title;
    });
}

} // namespace zarvil
