#pragma once

#include "protocol/Value.h"

#include <QByteArray>
#include <QStringList>

namespace zarvil::agent {

struct DeviceFileContents {
    /// Dictionaries all of them, with every key that the file gives.
    Array devices;
    /// What could not be read, in words.
    QStringList problems;
};

/// Reads a JSON list of device records. What is no record is left out and reported.
[[nodiscard]] DeviceFileContents parseDevices(const QByteArray& json);
[[nodiscard]] DeviceFileContents readDeviceFile(const QString& path);

} // namespace zarvil::agent
