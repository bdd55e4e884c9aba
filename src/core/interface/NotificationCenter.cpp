#include "interface/NotificationCenter.h"

namespace zarvil {

void NotificationCenter::addTextObserver(const void* observer, const TextField& field,
                                         Handler handler) {
    registrations_.push_back({observer, &field, std::move(handler)});
}

void NotificationCenter::removeObserver(const void* observer) {
    std::erase_if(registrations_, [observer](const Registration& registration) {
        return registration.observer == observer;
    });
}

void NotificationCenter::postTextDidChange(TextField& field) const {
    const auto snapshot = registrations_;
    for (const Registration& registration : snapshot) {
        if (registration.field == &field)
            registration.handler(field);
    }
}

} // namespace zarvil
