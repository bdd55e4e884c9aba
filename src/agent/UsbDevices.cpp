#include "agent/UsbDevices.h"

#include "agent/DeviceRecord.h"

#include <QSocketNotifier>

#include <cstring>
#include <libudev.h>

namespace zarvil::agent {

namespace {

constexpr const char* subsystem = "usb";
constexpr const char* deviceType = "usb_device";
constexpr std::string_view hubClass = "09";

struct UnrefDevice {
    void operator()(udev_device* device) const { udev_device_unref(device); }
};
using Device = std::unique_ptr<udev_device, UnrefDevice>;

struct UnrefEnumeration {
    void operator()(udev_enumerate* enumeration) const { udev_enumerate_unref(enumeration); }
};

/// Without the blanks that many devices pad their texts with; empty when there is none.
std::string attribute(udev_device* device, const char* name) {
    const char* value = udev_device_get_sysattr_value(device, name);
    return value ? QString::fromUtf8(value).trimmed().toStdString() : std::string();
}

std::string orElse(const std::string& text, std::string_view fallback) {
    return text.empty() ? std::string(fallback) : text;
}

Dictionary recordOf(udev_device* device) {
    return deviceRecord(orElse(attribute(device, "product"), "Unknown device"),
                        orElse(attribute(device, "manufacturer"), "Unknown vendor"),
                        attribute(device, "serial"));
}

QString reason(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

} // namespace

void UsbDevices::Release::operator()(udev* context) const { udev_unref(context); }
void UsbDevices::Release::operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }

UsbDevices::UsbDevices(Report appeared, Report went)
    : appeared_(std::move(appeared)), went_(std::move(went)) {}

UsbDevices::~UsbDevices() = default;

QString UsbDevices::start() {
    udev_.reset(udev_new());
    if (!udev_)
        return reason(errno);
    // Followed first, so that what comes during the listing is not missed; `add` takes it once.
    const QString following = follow();
    const QString listing = enumerate();
    return following.isEmpty() ? listing : following;
}

QString UsbDevices::follow() {
    monitor_.reset(udev_monitor_new_from_netlink(udev_.get(), "udev"));
    if (!monitor_)
        return reason(errno);
    udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), subsystem, deviceType);
    if (const int result = udev_monitor_enable_receiving(monitor_.get()); result < 0)
        return reason(-result);
    notifier_ = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor_.get()),
                                                  QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { readEvent(); });
    return {};
}

QString UsbDevices::enumerate() {
    const std::unique_ptr<udev_enumerate, UnrefEnumeration> enumeration(
        udev_enumerate_new(udev_.get()));
    udev_enumerate_add_match_subsystem(enumeration.get(), subsystem);
    udev_enumerate_add_match_property(enumeration.get(), "DEVTYPE", deviceType);
    if (const int result = udev_enumerate_scan_devices(enumeration.get()); result < 0)
        return reason(-result);
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumeration.get())) {
        const Device device(
            udev_device_new_from_syspath(udev_.get(), udev_list_entry_get_name(entry)));
        if (device)
            add(device.get());
    }
    return {};
}

void UsbDevices::readEvent() {
    const Device device(udev_monitor_receive_device(monitor_.get()));
    const char* action = device ? udev_device_get_action(device.get()) : nullptr;
    if (!action)
        return;
    if (std::strcmp(action, "add") == 0)
        add(device.get());
    else if (std::strcmp(action, "remove") == 0)
        remove(udev_device_get_syspath(device.get()));
}

void UsbDevices::add(udev_device* device) {
    if (attribute(device, "bDeviceClass") == hubClass)
        return;
    const auto [entry, added] =
        devices_.try_emplace(udev_device_get_syspath(device), recordOf(device));
    if (added)
        appeared_(entry->second);
}

void UsbDevices::remove(const std::string& place) {
    if (const auto entry = devices_.extract(place))
        went_(entry.mapped());
}

} // namespace zarvil::agent
