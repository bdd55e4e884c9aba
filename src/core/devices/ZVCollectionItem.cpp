#include "devices/ZVCollectionItem.h"

#include "interface/DisplayText.h"
#include "protocol/Messages.h"

#include <array>
#include <charconv>

namespace zarvil {

namespace {

template <typename Number>
std::string digits(Number number) {
    constexpr std::size_t mostDigits = 32;
    std::array<char, mostDigits> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace

void ZVCollectionItem::userDidSetState(unsigned long state) {
    setState(state);
    toggleSelectDevice();
}

void ZVCollectionItem::toggleSelectDevice() {
    if (!collectionView())
        return;
    if (auto* delegate = dynamic_cast<DeviceStateDelegate*>(collectionView()->delegate()))
        delegate->stateDidChange(*this);
}

void ZVCollectionItem::setState(unsigned long state) {
    if (state_ == state)
        return;
    state_ = state;
    appearanceDidChange();
}

View& ZVCollectionItem::note() {
    if (!note_)
        note_ = std::make_unique<View>();
    return *note_;
}

std::string ZVCollectionItem::name() const { return name(longestShownLine); }

std::string ZVCollectionItem::detail() const {
    const std::string vendor = text(payload::deviceVendor, longestShownLine);
    return (vendor.empty() ? vendor : vendor + " · ") + serial(longestShownLine);
}

std::string ZVCollectionItem::toolTip() const { return joined("\n", longestShownMessage); }

std::string ZVCollectionItem::spokenName() const { return joined(", ", longestShownLine); }

std::string ZVCollectionItem::joined(std::string_view separator, std::size_t limit) const {
    std::string whole = name(limit);
    if (const std::string vendor = text(payload::deviceVendor, limit); !vendor.empty())
        whole.append(separator).append(vendor);
    return whole.append(separator).append(serial(limit));
}

std::string ZVCollectionItem::text(std::string_view key, std::size_t limit) const {
    const Value* value =
        representedObject() ? representedObject()->contents().objectForKey(key) : nullptr;
    if (!value)
        return {};
    if (const auto* string = value->as<std::string>())
        return showableText(*string, limit);
    if (const auto* number = value->as<std::int64_t>())
        return digits(*number);
    if (const auto* number = value->as<double>())
        return digits(*number);
    return {};
}

std::string ZVCollectionItem::name(std::size_t limit) const {
    std::string given = text(payload::deviceName, limit);
    return isBlank(given) ? strings_.localizedString("Unnamed device") : given;
}

std::string ZVCollectionItem::serial(std::size_t limit) const {
    std::string given = text(payload::deviceSerial, limit);
    return isBlank(given) || given == payload::unknownSerial
               ? strings_.localizedString("No serial number")
               : given;
}

std::string deviceSortKey(const MutableRecord& device) {
    const std::string* name = device.contents().stringForKey(payload::deviceName);
    return name ? naturalSortKey(*name) : std::string();
}

} // namespace zarvil
