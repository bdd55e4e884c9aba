#pragma once

#include "interface/Record.h"
#include "platform/FileManager.h"
#include "platform/Time.h"

#include <deque>
#include <memory>
#include <string>

namespace zarvil {

class ScriptFolder;

/// Reads the texts of listed scripts: each when it is first needed, the others soon after the
/// listing, a few at a time, so that a folder of thousands does not stop the window.
class ScriptTexts {
public:
    /// Both must outlive this and its records' first use.
    ScriptTexts(Timers& timers, const FileManager& files) : timers_(timers), files_(files) {}
    ScriptTexts(const ScriptTexts&) = delete;
    ScriptTexts& operator=(const ScriptTexts&) = delete;

    /// The record of a file's script; its text is "" where the file cannot be read.
    [[nodiscard]] Record makeScript(const std::string& folder, std::string fileName);
    /// Reads what is left at once: files are about to change.
    void readAll();

private:
    void readSome();
    void readNext();

    Timers& timers_;
    const FileManager& files_;
    std::shared_ptr<const ScriptFolder> folder_; ///< of the last script
    std::deque<std::weak_ptr<MutableRecord>> unread_;
    std::unique_ptr<Timer> next_;
};

} // namespace zarvil
