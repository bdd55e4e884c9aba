#pragma once

#include "protocol/Value.h"

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <string_view>

/// A device as it travels: a dictionary with name, vendor and serial, and any further keys.
namespace zarvil::agent {

/// An empty serial number becomes the one that stands for none.
[[nodiscard]] Dictionary deviceRecord(std::string_view name, std::string_view vendor,
                                      std::string_view serial);

/// Name, vendor and serial are all there and equal; a missing one equals nothing.
[[nodiscard]] bool isSameDevice(const Dictionary& left, const Dictionary& right);

/// Removes the first record with the same contents, else the first of the same device, and gives
/// it; empty when there is neither.
std::optional<Dictionary> takeDevice(Array& records, const Dictionary& device);

/// "name, vendor, serial" for a reader.
[[nodiscard]] std::string describe(const Dictionary& device);

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
