#include "agent/PushoverForm.h"

#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil::agent {

namespace {

constexpr std::size_t userIdLength = 30;
constexpr std::size_t longestDeviceId = 25;

bool isAlphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isUserId(const std::string* text) {
    return text && text->size() == userIdLength && std::ranges::all_of(*text, isAlphanumeric);
}

bool isDeviceId(const std::string* text) {
    return text && !text->empty() && text->size() <= longestDeviceId &&
           std::ranges::all_of(*text,
                               [](char c) { return isAlphanumeric(c) || c == '_' || c == '-'; });
}

} // namespace

int verdictByForm(const Dictionary& request) {
    const bool deviceFits = !request.objectForKey(payload::deviceId) ||
                            isDeviceId(request.stringForKey(payload::deviceId));
    const bool fits = isUserId(request.stringForKey(payload::userId)) && deviceFits;
    return fits ? pushCode::valid : pushCode::wrongSettings;
}

} // namespace zarvil::agent
