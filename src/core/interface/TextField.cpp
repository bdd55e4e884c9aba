#include "interface/TextField.h"

#include "interface/NotificationCenter.h"
#include "protocol/Numbers.h"

namespace zarvil {

void TextField::userDidEdit(std::string_view text) {
    if (text == stringValue())
        return;
    setStringValue(text);
    if (center_)
        center_->postTextDidChange(*this);
}

void TextField::setIntegerValue(std::int64_t value) { setStringValue(numbers::text(value)); }

void TextField::setFloatValue(float value) { setStringValue(numbers::text(value)); }

std::int64_t TextField::integerValue() const { return numbers::integerValue(stringValue()); }

float TextField::floatValue() const { return numbers::floatValue(stringValue()); }

int TextField::intValue() const { return numbers::intValue(stringValue()); }

void TextField::setAttributedStringValue(AttributedString value) {
    setStringValue(value.text());
    attributedText_.set(std::move(value));
}

} // namespace zarvil
