#include "interface/TextField.h"

#include "interface/NotificationCenter.h"
#include "protocol/Numbers.h"

namespace zarvil {

void TextField::userDidEdit(std::string_view text) {
    if (text == stringValue())
        return;
    setFault({});
    text_.set(std::string(text));
    if (center_)
        center_->postTextDidChange(*this);
}

void TextField::endEdit(bool isLeft) {
    // A field that is greyed while it is edited loses the keyboard without the user's doing.
    if (!isEnabled() || stringValue() == settledText_)
        return;
    if (std::string fault = check_ ? check_(stringValue()) : std::string(); !fault.empty()) {
        if (isLeft)
            userDidEdit(settledText_);
        setFault(std::move(fault));
        return;
    }
    settledText_ = stringValue();
    settledNumber_.reset();
    sendAction();
}

void TextField::setStringValue(std::string_view value) {
    settledText_ = value;
    settledNumber_.reset();
    setFault({});
    text_.set(settledText_);
}

void TextField::showNumber(Number number, std::string_view text) {
    setStringValue(text);
    settledNumber_ = number;
}

void TextField::setIntegerValue(std::int64_t value) { showNumber(value, numbers::text(value)); }

void TextField::setFloatValue(float value) {
    std::string text = numbers::text(value);
    if (const auto point = text.find('.'); point != std::string::npos)
        text.replace(point, 1, separator_);
    showNumber(value, std::move(text));
}

const TextField::Number* TextField::shownNumber() const {
    return settledNumber_ && stringValue() == settledText_ ? &*settledNumber_ : nullptr;
}

std::string TextField::numericText() const {
    std::string text = stringValue();
    if (const auto separator = text.find(separator_); separator != std::string::npos)
        text.replace(separator, separator_.size(), ".");
    return text;
}

std::int64_t TextField::integerValue() const {
    const Number* number = shownNumber();
    if (!number)
        return numbers::integerValue(numericText());
    const auto* integer = std::get_if<std::int64_t>(number);
    return integer ? *integer : numbers::truncated(double{std::get<float>(*number)});
}

float TextField::floatValue() const {
    const Number* number = shownNumber();
    if (!number)
        return numbers::floatValue(numericText());
    return std::visit([](auto value) { return static_cast<float>(value); }, *number);
}

int TextField::intValue() const { return numbers::narrowed(integerValue()); }

void TextField::setAttributedStringValue(AttributedString value) {
    setStringValue(value.text());
    attributedText_.set(std::move(value));
}

} // namespace zarvil
