#pragma once

#include "protocol/NonCopyable.h"

#include <functional>
#include <vector>

namespace zarvil {

class TextField;

/// Tells observers within this process that a user edited a text field. Main thread only.
class NotificationCenter : NonCopyable {
public:
    using Handler = std::function<void(TextField&)>;

    /// Observes the edits of one field. An observer added twice is called twice.
    void addTextObserver(const void* observer, const TextField& field, Handler handler);
    /// Ends every registration of the observer.
    void removeObserver(const void* observer);
    void postTextDidChange(TextField& field) const;

private:
    struct Registration {
        const void* observer;
        const TextField* field;
        Handler handler;
    };
    std::vector<Registration> registrations_;
};

} // namespace zarvil
