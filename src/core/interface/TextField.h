#pragma once

#include "interface/AttributedString.h"
#include "interface/Control.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

namespace zarvil {

class NotificationCenter;

/// A field that the user edits, or a label. Its text also reads and writes as a number; while it
/// shows a number that it was set to, it reads as just that number, whatever digits were left out.
class TextField : public Control {
public:
    /// What the user's edits are announced on; not owned. Without one they are announced nowhere.
    void setNotificationCenter(NotificationCenter* center) { center_ = center; }

    /// Not owned; told nothing, edits are announced on the notification center.
    void setDelegate(const void* delegate) { delegate_ = delegate; }
    [[nodiscard]] const void* delegate() const { return delegate_; }

    /// Says why a text is not taken as an entry, in the user's language; empty when it is.
    using EntryCheck = std::function<std::string(std::string_view text)>;
    void setEntryCheck(EntryCheck check) { check_ = std::move(check); }
    /// What numbers are shown and read with; in UTF-8.
    void setDecimalSeparator(std::string_view separator) { separator_ = separator; }

    // Events in.
    /// The user changed the text without ending the edit.
    void userDidEdit(std::string_view text);
    /// An edit that was not sent yet is sent. One that is not taken is not: after Return its text
    /// stays to be corrected, after the field was left the former one comes back.
    void userDidPressReturn() { endEdit(false); }
    void userDidLeave() { endEdit(true); }

    // State.
    void setStringValue(std::string_view value);
    [[nodiscard]] const std::string& stringValue() const { return text_.get(); }
    void setIntegerValue(std::int64_t value);
    void setFloatValue(float value);
    [[nodiscard]] std::int64_t integerValue() const;
    [[nodiscard]] float floatValue() const;
    [[nodiscard]] int intValue() const;
    /// Why the field's text is not taken; empty when it is. It goes with the next change.
    void setFault(std::string fault) { fault_.set(std::move(fault)); }
    [[nodiscard]] const std::string& fault() const { return fault_.get(); }
    [[nodiscard]] const Property<std::string>& faultProperty() const { return fault_; }
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
    using Number = std::variant<std::int64_t, float>;

    void endEdit(bool isLeft);
    void showNumber(Number number, std::string_view text);
    /// The number that the field was set to, while it shows it.
    [[nodiscard]] const Number* shownNumber() const;
    [[nodiscard]] std::string numericText() const;

    Property<std::string> text_;
    std::string settledText_; ///< the text as it was last set or sent
    std::optional<Number> settledNumber_;
    Property<std::string> fault_;
    EntryCheck check_;
    std::string separator_ = ".";
    Property<AttributedString> attributedText_;
    NotificationCenter* center_ = nullptr;
    const void* delegate_ = nullptr;
};

} // namespace zarvil
