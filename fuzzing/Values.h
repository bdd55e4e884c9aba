#pragma once

#include "Input.h"
#include "protocol/MessageCenter.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"
#include "protocol/Value.h"

/// Property lists as nobody should send them, and as somebody might.
namespace zarvil::fuzz {

inline constexpr int deepest = 6;

inline double arbitraryDouble(Input& input) {
    static constexpr std::array choices{0.0,   -0.0,  0.5,    1.5, -1.0,   90.0,
                                        1e300, -1e99, 1e-300, 3e9, 9.3e18, -9.3e18};
    return input.pick(choices);
}

inline std::string arbitraryText(Input& input) {
    static constexpr std::array<std::string_view, 12> choices{
        "",    " ",      "1",        "-7",  "90",   "1.5",
        "YES", "a@b.cc", "\xC3\xA4", "N/A", "\xFF", "\xE2\x80\xAE"};
    return input.flag() ? std::string(input.pick(choices)) : input.text(20);
}

inline Dictionary arbitraryDictionary(Input& input, int depth = 0);

inline Value arbitraryValue(Input& input, int depth = 0) {
    switch (input.below(depth < deepest ? 7 : 5)) {
    case 0:
        return input.flag();
    case 1:
        return input.integer();
    case 2:
        return arbitraryDouble(input);
    case 3:
        return arbitraryText(input);
    case 4:
        return Data(input.below(9), std::byte{input.byte()});
    case 5: {
        Array array;
        for (std::size_t count = input.below(4); count > 0; --count)
            array.push_back(arbitraryValue(input, depth + 1));
        return array;
    }
    default:
        return arbitraryDictionary(input, depth + 1);
    }
}

inline Dictionary arbitraryDictionary(Input& input, int depth) {
    Dictionary dictionary;
    for (std::size_t count = input.below(4); count > 0; --count) {
        const std::string key = arbitraryText(input);
        dictionary.setObject(key, arbitraryValue(input, depth + 1));
    }
    return dictionary;
}

/// Few different ones, so that equal ones meet; now and then incomplete or with more in it.
inline Dictionary arbitraryDevice(Input& input) {
    static constexpr std::array<std::string_view, 4> names{"A", "a", "B 10", "B 9"};
    static constexpr std::array<std::string_view, 2> vendors{"V", "W"};
    static constexpr std::array<std::string_view, 4> serials{"1", "2", "N/A", "n/a"};
    const std::uint8_t oddity = input.byte();
    const std::uint8_t which = input.byte();
    Dictionary device{{std::string(payload::deviceVendor), vendors.at(which >> 2U & 1U)},
                      {std::string(payload::deviceSerial), serials.at(which >> 3U & 3U)}};
    if (oddity != 1)
        device.setObject(payload::deviceName, names.at(which & 3U));
    if (oddity == 2)
        device.setObject(payload::deviceSerial, arbitraryValue(input));
    if (oddity == 3)
        device.setObject(arbitraryText(input), arbitraryValue(input));
    return device;
}

inline Value deviceOrNot(Input& input) {
    if (input.byte() == 1)
        return arbitraryValue(input);
    return arbitraryDevice(input);
}

/// Each setting there or not, of its type or of another.
inline Dictionary arbitrarySettings(Input& input) {
    Dictionary settings;
    for (const setting::Description& known : setting::table) {
        const std::uint8_t choice = input.byte();
        if (choice % 4 == 0)
            continue;
        if (choice % 32 == 1)
            settings.setObject(known.key, arbitraryValue(input));
        else if (known.type == setting::Type::Boolean)
            settings.setObject(known.key, choice % 4 == 3);
        else if (known.type == setting::Type::Seconds)
            settings.setObject(known.key, input.integer());
        else
            settings.setObject(known.key, arbitraryText(input));
    }
    return settings;
}

/// The payload that a message of the agent's has, or another.
inline Dictionary arbitraryPayload(Input& input, std::string_view name) {
    const auto with = [](std::string_view key, Value value) {
        Dictionary info;
        info.setObject(key, std::move(value));
        return info;
    };
    const std::uint8_t oddity = input.byte();
    if (oddity == 1)
        return arbitraryDictionary(input);
    if (name == message::savedPrefs)
        return arbitrarySettings(input);
    if (name == message::deviceConnected || name == message::deviceDisconnected)
        return arbitraryDevice(input);
    if (name == message::newSavedDevice)
        return with(payload::device, deviceOrNot(input));
    if (name == message::stateChanged)
        return with(payload::state, oddity == 2 ? arbitraryValue(input) : Value(input.flag()));
    if (name == message::pushValidationFinished)
        return with(payload::code, oddity == 2 ? arbitraryValue(input) : Value(input.integer()));
    if (oddity == 2)
        return with(payload::devices, arbitraryValue(input));
    Array devices;
    for (std::size_t count = input.below(6); count > 0; --count)
        devices.push_back(deviceOrNot(input));
    return with(payload::devices, std::move(devices));
}

inline Message arbitraryMessage(Input& input) {
    const std::string_view name = input.pick(message::agentToPane);
    if (input.byte() == 1)
        return Message(name);
    return {name, arbitraryPayload(input, name)};
}

} // namespace zarvil::fuzz
