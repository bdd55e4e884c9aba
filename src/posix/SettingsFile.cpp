#include "posix/SettingsFile.h"

#include "posix/AtomicFile.h"
#include "posix/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace zarvil::posix {

namespace {

constexpr mode_t ownersAlone = 0600;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::string header(std::string_view section) { return "[" + std::string(section) + "]"; }

/// The line of a key, or where it belongs.
struct Place {
    Place(std::string_view content, std::string_view section, std::string_view key) {
        const std::string beginning = std::string(key) + '=';
        for (std::size_t start = 0; start < content.size(); start = end + 1) {
            end = std::min(content.find('\n', start), content.size());
            const std::string_view line = content.substr(start, end - start);
            if (line.starts_with('[')) {
                if (isInSection)
                    break;
                isInSection = trimmed(line) == header(section);
                begin = std::min(end + 1, content.size());
            } else if (isInSection && line.starts_with(beginning)) {
                begin = start;
                isThere = true;
                return;
            }
        }
        end = begin = isInSection ? begin : content.size();
    }

    std::size_t begin = 0;
    std::size_t end = 0; ///< without the end of the line
    bool isInSection = false;
    bool isThere = false;
};

std::string valueIn(std::string_view content, std::string_view section, std::string_view key) {
    const Place place(content, section, key);
    const std::size_t begin = place.begin + key.size() + 1;
    return place.isThere ? std::string(trimmed(content.substr(begin, place.end - begin)))
                         : std::string();
}

void setValueIn(std::string& content, std::string_view section, std::string_view key,
                std::string_view value) {
    const Place place(content, section, key);
    std::string text = std::string(key) + '=' + std::string(value);
    if (!place.isThere)
        text += '\n';
    if (!place.isInSection)
        text.insert(0, header(section) + '\n');
    if (!place.isThere && place.begin > 0 && content[place.begin - 1] != '\n')
        text.insert(0, 1, '\n');
    content.replace(place.begin, place.end - place.begin, text);
}

/// Behind a link, where the path is one.
std::string targetOf(const std::string& path) {
    std::error_code missing;
    const auto target = std::filesystem::canonical(path, missing);
    return missing ? path : target.string();
}

} // namespace

SettingsFile::SettingsFile(std::string path, std::function<void()> tellFault)
    : path_(std::move(path)), tellFault_(std::move(tellFault)) {
    report(read());
}

std::string SettingsFile::value(std::string_view section, std::string_view key) const {
    const auto found = unwritten_.find(Name(section, key));
    return found == unwritten_.end() ? valueIn(content_, section, key) : found->second;
}

void SettingsFile::setValue(std::string_view section, std::string_view key,
                            std::string_view value) {
    unwritten_.insert_or_assign(Name(section, key), value);
    // Read again: another process may have written.
    report(read() && write());
}

bool SettingsFile::read() {
    auto content = readFile(path_);
    if (!content && errno != ENOENT)
        return false;
    content_ = std::move(content).value_or(std::string());
    return true;
}

bool SettingsFile::write() {
    std::string content = content_;
    for (const auto& [name, value] : unwritten_)
        setValueIn(content, name.first, name.second, value);
    if (content != content_) {
        std::error_code ignored; // the file will tell
        std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), ignored);
        AtomicFile file(targetOf(path_));
        if (file.prepare(content, ownersAlone) != 0 || file.commit() != 0)
            return false;
    }
    content_ = std::move(content);
    unwritten_.clear();
    return true;
}

void SettingsFile::report(bool isDone) {
    if (!isDone && tellFault_)
        std::exchange(tellFault_, nullptr)();
}

} // namespace zarvil::posix
