#pragma once

#include "interface/AttributedString.h"
#include "interface/Control.h"

#include <cstdint>

namespace zarvil {

class NotificationCenter;

/// A field that the user edits, or a label. Its text also reads and writes as a number.
class TextField : public Control {
public:
    /// What the user's edits are announced on; not owned. Without one they are announced nowhere.
    void setNotificationCenter(NotificationCenter* center) { center_ = center; }

    /// Not owned; told nothing, edits are announced on the notification center.
    void setDelegate(const void* delegate) { delegate_ = delegate; }
    [[nodiscard]] const void* delegate() const { return delegate_; }

    // Events in.
    /// The user changed the text without ending the edit.
    void userDidEdit(std::string_view text);

    // State.
    void setStringValue(std::string_view value) { text_.set(std::string(value)); }
    [[nodiscard]] const std::string& stringValue() const { return text_.get(); }
    void setIntegerValue(std::int64_t value);
    void setFloatValue(float value);
    [[nodiscard]] std::int64_t integerValue() const;
    [[nodiscard]] float floatValue() const;
    [[nodiscard]] int intValue() const;
    /// Styled text; the plain text follows it.
    void setAttributedStringValue(AttributedString value);
    [[nodiscard]] const AttributedString& attributedStringValue() const {
        return attributedText_.get();
    }

    [[nodiscard]] const Property<std::string>& stringProperty() const { return text_; }
    [[nodiscard]] const Property<AttributedString>& attributedStringProperty() const {
        return attributedText_;
    }

private:
    Property<std::string> text_;
    Property<AttributedString> attributedText_;
    NotificationCenter* center_ = nullptr;
    const void* delegate_ = nullptr;
};

} // namespace zarvil
