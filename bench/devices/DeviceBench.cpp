#include "PaneOnFakes.h"
#include "protocol/Messages.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

namespace zarvil {
namespace {

using Handler = void (Zarvil_Preferences::*)(const Message*);

constexpr int few = 1'000;
constexpr int many = 10'000;
constexpr int repetitions = 40;

/// A pane whose agent has answered, so that a message does not empty the lists first.
std::unique_ptr<PaneOnFakes> answeredPane() {
    auto fakes = std::make_unique<PaneOnFakes>();
    fakes->pane.mainViewDidLoad();
    fakes->pane.appDidAnswer(nullptr);
    return fakes;
}

Dictionary device(int number) {
    return {{"DeviceName", "Power device " + std::to_string(number)},
            {"DeviceVendor", "Vendor " + std::to_string(number % 40)},
            {"DeviceSerial", "SN-" + std::to_string(number)}};
}

Message deviceList(int first, int count) {
    Array devices;
    for (int number = first; number < first + count; ++number)
        devices.emplace_back(device(number));
    return {"list of devices", Dictionary{{"devices", std::move(devices)}}};
}

/// Processor time of this process: others on the machine do not count.
template <typename Work>
double seconds(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// The least of several runs: what the work takes when nothing else disturbs it.
template <typename Run>
double best(Run&& run) {
    double least = run();
    for (int repetition = 1; repetition < repetitions; ++repetition)
        least = std::min(least, run());
    return least;
}

/// Time that one pane takes for one full list of `count` devices.
double timeToLoad(Handler handler, int count) {
    const Message message = deviceList(0, count);
    return best([handler, &message] {
        const auto fakes = answeredPane();
        return seconds([&] { (fakes->pane.*handler)(&message); });
    });
}

void compare(std::string_view name, Handler handler) {
    // The large one first, so that the small one does not pay for what the allocator learns.
    const double large = timeToLoad(handler, many) / many;
    const double small = timeToLoad(handler, few) / few;
    std::printf("%-22s %6.3f us a device at %d, %6.3f us at %d, ratio %.2f\n", name.data(),
                small * 1e6, few, large * 1e6, many, large / small);
}

/// Plugging and unplugging one device while `count` others stand in each list.
void burst(int count) {
    const double each = best([count] {
        const auto fakes = answeredPane();
        Zarvil_Preferences& pane = fakes->pane;
        const Message saved = deviceList(0, count);
        const Message connected = deviceList(count, count);
        pane.allSavedDevices(&saved);
        pane.allConnectedDevices(&connected);
        const Message plugged(message::deviceConnected, device(2 * count));
        const Message unplugged(message::deviceDisconnected, device(2 * count));
        constexpr int rounds = 100;
        return seconds([&] {
                   for (int round = 0; round < rounds; ++round) {
                       pane.deviceConnected(&plugged);
                       pane.deviceDisconnected(&unplugged);
                   }
               }) /
               (2 * rounds);
    });
    std::printf("plug and unplug       %7.3f us a message with %d devices in each list\n",
                each * 1e6, count);
}

/// Every device unplugged in the order of arrival, the costliest order.
void unplugAll(int count) {
    const double each = best([count] {
        const auto fakes = answeredPane();
        Zarvil_Preferences& pane = fakes->pane;
        const Message connected = deviceList(0, count);
        pane.allConnectedDevices(&connected);
        std::vector<Message> departures;
        departures.reserve(static_cast<std::size_t>(count));
        for (int number = 0; number < count; ++number)
            departures.emplace_back(message::deviceDisconnected, device(number));
        return seconds([&] {
            for (const Message& departure : departures)
                pane.deviceDisconnected(&departure);
        });
    });
    std::printf("unplug oldest first   %7.3f us a message, %d devices in %.1f ms\n",
                each / count * 1e6, count, each * 1e3);
}

} // namespace
} // namespace zarvil

int main() {
    using namespace zarvil;
    compare(message::allConnectedDevices, &Zarvil_Preferences::allConnectedDevices);
    compare(message::allSavedDevices, &Zarvil_Preferences::allSavedDevices);
    for (const int count : {few, many})
        burst(count);
    for (const int count : {few, many})
        unplugAll(count);
}
