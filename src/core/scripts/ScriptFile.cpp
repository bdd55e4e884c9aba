#include "scripts/ScriptFile.h"

#include "platform/FileManager.h"

namespace zarvil::script {

namespace {

std::string appendingPathComponent(std::string path, std::string_view component) {
    path += '/';
    for (const char character : component) {
        if (character != '/' || path.back() != '/')
            path += character;
    }
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

} // namespace

std::string filePath(const FileManager& files, std::string_view scriptTitle) {
    std::string path =
        appendingPathComponent(files.expandingTilde(kZVScriptingFolder), scriptTitle);
    return path.append(".").append(fileExtension);
}

std::string titleOfFile(std::string_view fileName) {
    const std::size_t dot = fileName.rfind('.');
    if (dot != std::string_view::npos && dot > 0)
        fileName = fileName.substr(0, dot);
    return std::string(fileName);
}

std::string withoutByteOrderMark(std::string content) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (content.starts_with(mark))
        content.erase(0, mark.size());
    return content;
}

} // namespace zarvil::script
