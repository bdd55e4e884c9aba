#pragma once

#include "agent/AgentLog.h"
#include "protocol/Value.h"

#include <QString>

#include <string_view>

namespace zarvil::agent {

/// What the agent keeps over restarts, in one JSON file: the settings, the saved devices
/// and whether protection is on. Entries that it does not know stay in the file untouched.
class AgentSettings {
public:
    /// Reads the file. One that is missing gives the defaults; one that cannot be read is reported
    /// and kept aside under another name, and gives the defaults too.
    AgentSettings(QString path, AgentLog& log);

    /// Every setting that has a value, defaults included.
    [[nodiscard]] Dictionary settings() const;
    /// False, and nothing stored, when the protocol has no such setting or none of this type.
    bool store(std::string_view key, const Value& value);

    [[nodiscard]] bool isProtecting() const;
    void setProtecting(bool protecting);

    [[nodiscard]] const Array& savedDevices() const { return savedDevices_; }
    /// False when the same device is saved already.
    bool addSavedDevice(const Dictionary& device);
    /// False when it is not saved.
    bool removeSavedDevice(const Dictionary& device);

    /// Writes the file, in one step, if anything changed since it was last written. False when it
    /// could not; that is reported once, and the next call tries again.
    bool write();

private:
    void read();
    void adopt(const Dictionary& stored);
    void keepAside(const QString& reason);

    QString path_;
    AgentLog& log_;
    Dictionary stored_;
    Array savedDevices_;
    bool changed_ = false;
    bool reported_ = false; ///< the file cannot be written, and that was said
};

} // namespace zarvil::agent
