#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Value.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

class QSocketNotifier;
struct udev;
struct udev_device;
struct udev_monitor;

namespace zarvil::agent {

/// The USB devices of this computer, hubs left out, as they come and go. Needs an event loop.
class UsbDevices : NonCopyable {
public:
    using Report = std::function<void(const Dictionary&)>;

    UsbDevices(Report appeared, Report went);
    ~UsbDevices();

    /// Reports every device that is there, then each change. The reason, in words, when devices
    /// cannot be listed or followed.
    QString start();

private:
    QString follow();
    QString enumerate();
    void readEvent();
    void add(udev_device* device);
    void remove(const std::string& place);

    struct Release {
        void operator()(udev* context) const;
        void operator()(udev_monitor* monitor) const;
    };

    Report appeared_;
    Report went_;
    std::unique_ptr<udev, Release> udev_;
    std::unique_ptr<udev_monitor, Release> monitor_;
    std::unique_ptr<QSocketNotifier> notifier_;
    // By place in /sys: the attributes of a device that went can no longer be read.
    std::unordered_map<std::string, Dictionary> devices_;
};

} // namespace zarvil::agent
