#pragma once

#include <QString>

namespace zarvil::agent {

/// The agent's log file, one dated line an event. A file that cannot be written is said once.
class AgentLog {
public:
    explicit AgentLog(QString path) : path_(std::move(path)) {}

    [[nodiscard]] const QString& path() const { return path_; }

    void note(const QString& text);
    /// Also tells whoever runs the agent, on standard error.
    void problem(const QString& text);

private:
    QString path_;
    bool complained_ = false;
};

} // namespace zarvil::agent
