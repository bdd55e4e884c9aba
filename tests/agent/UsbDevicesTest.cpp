#include "agent/UsbDevices.h"
#include "agent/DeviceRecord.h"

#include "EventWait.h"

#include <gtest/gtest.h>

#include <umockdev.h>

#include <memory>
#include <string>
#include <vector>

namespace zarvil::agent {
namespace {

/// A made-up computer, and what is reported of it: "+" a device that came, "-" one that went.
class Usb : public testing::Test {
protected:
    struct Release {
        void operator()(UMockdevTestbed* owned) const { g_object_unref(owned); }
    };
    using Attributes = std::vector<std::pair<const char*, const char*>>;

    std::string plug(const char* name, const Attributes& attributes) {
        std::vector<gchar*> texts;
        for (const auto& [key, value] : attributes) {
            texts.push_back(const_cast<gchar*>(key));
            texts.push_back(const_cast<gchar*>(value));
        }
        texts.push_back(nullptr);
        const gchar* properties[] = {"DEVTYPE", "usb_device", nullptr};
        gchar* place = umockdev_testbed_add_devicev(bed.get(), "usb", name, nullptr, texts.data(),
                                                    const_cast<gchar**>(properties));
        const std::string path(place);
        g_free(place);
        return path;
    }

    std::unique_ptr<UMockdevTestbed, Release> bed{umockdev_testbed_new()};
    std::vector<std::string> reports;
    UsbDevices usb{[this](const Dictionary& device) { reports.push_back("+" + describe(device)); },
                   [this](const Dictionary& device) { reports.push_back("-" + describe(device)); }};
};

TEST_F(Usb, devicesAreListedThenFollowed) {
    const std::string ups =
        plug("1-1", {{"product", "UPS 500 "}, {"manufacturer", "Maker"}, {"serial", "S1"}});
    plug("usb1", {{"product", "Root hub"}, {"bDeviceClass", "09"}});
    EXPECT_EQ(usb.start(), "");
    EXPECT_EQ(reports, std::vector<std::string>{"+UPS 500, Maker, S1"});

    reports.clear();
    const std::string nameless = plug("1-2", {});
    ASSERT_TRUE(waitFor([&] { return !reports.empty(); }));
    umockdev_testbed_uevent(bed.get(), nameless.c_str(), "change");
    umockdev_testbed_uevent(bed.get(), nameless.c_str(), "add");
    for (const std::string& place : {ups, nameless}) {
        umockdev_testbed_uevent(bed.get(), place.c_str(), "remove");
        umockdev_testbed_remove_device(bed.get(), place.c_str());
    }
    ASSERT_TRUE(waitFor([&] { return reports.size() >= 3; }));
    EXPECT_EQ(reports, (std::vector<std::string>{"+Unknown device, Unknown vendor, N/A",
                                                 "-UPS 500, Maker, S1",
                                                 "-Unknown device, Unknown vendor, N/A"}));
}

} // namespace
} // namespace zarvil::agent
