#include "interface/DisplayText.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <algorithm>

namespace zarvil {

namespace {

constexpr std::size_t mostLines = 4;
constexpr std::size_t longestLine = 400; // bytes, more than a card is wide

/// Tabs as blanks, for labels have no tab stops.
std::string cardLine(std::string_view line) {
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    std::string shown;
    for (const char character : showableText(line, longestLine, LineBreaks::Kept)) {
        if (character == '\t')
            shown += "    ";
        else
            shown += character;
    }
    return shown;
}

std::string mebibytes(std::size_t bytes) {
    constexpr std::size_t tenth = (std::size_t{1} << 20) / 10;
    const std::size_t tenths = bytes / tenth;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " MiB";
}

} // namespace

std::string ZVScriptCollectionItem::localized(std::string_view key) const {
    return platform_.strings.localizedString(key);
}

ScriptOutcome ZVScriptCollectionItem::outcomeOf(const ScriptError* error) const {
    if (!error && progress_.stoppingProperty().get())
        return {};
    if (!error)
        return {localized("Ended without an error."), false};
    std::string message = showableText(error->message, longestShownLine);
    if (!error->inItsOwnWords)
        return {std::move(message), true};
    return {platform_.strings.localizedString("Failed with exit status %1: %2",
                                              {std::to_string(error->number), message}),
            true};
}

ScriptState ZVScriptCollectionItem::shownState() const {
    const ScriptOutcome& outcome = outcome_.get();
    const ScriptNote& note = note_.get();
    // What is not saved matters more than a run that went well.
    if (outcome.failed || (!outcome.line.empty() && note.caption.empty()))
        return {outcome.failed ? Symbol::Warning : Symbol::Tick, outcome.line, {}};
    return {Symbol::Warning, note.caption, note.reason};
}

std::string ZVScriptCollectionItem::aboutThis(std::string_view key) const {
    return platform_.strings.localizedString(key, {shownTitle()});
}

std::string_view ZVScriptCollectionItem::stringOfRow(std::string_view key) const {
    const Record& record = representedObject();
    const std::string* value = record ? record->stringForKey(key) : nullptr;
    return value ? std::string_view(*value) : std::string_view();
}

std::string ZVScriptCollectionItem::shownTitle() const {
    return showableText(stringOfRow(script::title), longestShownLine);
}

std::vector<std::string> ZVScriptCollectionItem::shownLines() const {
    std::vector<std::string> lines;
    std::string_view rest = stringOfRow(script::text);
    while (!rest.empty() && lines.size() < mostLines) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        lines.push_back(cardLine(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (!rest.empty())
        lines.back() += "\u2026";
    return lines;
}

std::string ZVScriptCollectionItem::emptyText() const {
    return localized("This script is empty. Edit it before you run it.");
}

std::string ZVScriptCollectionItem::cardName() const { return aboutThis("Script “%1”"); }

ButtonCaption ZVScriptCollectionItem::runCaption() const {
    return {localized(running_.get() ? "Running…" : "Run"),
            localized("Run this script once, now. The window waits until it has ended."),
            aboutThis("Run “%1”")};
}

ButtonCaption ZVScriptCollectionItem::editCaption() const {
    if (editing())
        return {localized("Done"), localized("Save the title and the text."),
                aboutThis("Save “%1”")};
    return {localized("Edit"), localized("Edit the title and the text in place."),
            aboutThis("Edit “%1”")};
}

ButtonCaption ZVScriptCollectionItem::cancelCaption() const {
    return {localized("Cancel"), localized("End editing without saving. Esc leads here."),
            aboutThis("Cancel editing “%1”")};
}

ButtonCaption ZVScriptCollectionItem::removeCaption() const {
    return {localized("Remove"),
            localized("Delete this script and its file at once. This cannot be undone."),
            aboutThis("Remove “%1”")};
}

std::string ZVScriptCollectionItem::editingHint() const {
    return localized("Editing. Done saves the title and the text.");
}

std::string ZVScriptCollectionItem::titleFieldName() const {
    return localized("Title of the script");
}

std::string ZVScriptCollectionItem::textFieldName() const {
    return localized("Text of the script");
}

std::string ZVScriptCollectionItem::tooLargeText() const {
    return platform_.strings.localizedString(
        "This script is too large to be edited here (%1). Its text stays as it is; its title can "
        "be changed.",
        {mebibytes(stringOfRow(script::text).size())});
}

} // namespace zarvil
