#include "protocol/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zarvil::numbers {
namespace {

constexpr auto largestInteger = std::numeric_limits<std::int64_t>::max();
constexpr auto smallestInteger = std::numeric_limits<std::int64_t>::min();
constexpr float largestFloat = std::numeric_limits<float>::max();

TEST(Numbers, takeTheLongestNumericPrefixOfAText) {
    struct Case {
        std::string text;
        std::int64_t integer;
        float floating;
        bool boolean;
    };
    const Case cases[] = {
        {"", 0, 0, false},
        {"90", 90, 90, true},
        {"  \t\n42 s", 42, 42, true},
        {"1.5", 1, 1.5F, true},
        {".5", 0, 0.5F, false},
        {"5.", 5, 5, true},
        {"+7", 7, 7, true},
        {"-1", -1, -1, true},
        {"- 1", 0, 0, false},
        {"+-3", 0, 0, false},
        {"--3", 0, 0, false},
        {"1e3", 1, 1000, true},
        {"1e", 1, 1, true},
        {"2e+", 2, 2, true},
        {"1e-2x", 1, 0.01F, true},
        {"abc", 0, 0, false},
        {"nan", 0, 0, false},
        {"inf", 0, 0, false},
        {"0x10", 0, 0, false},
        {"1,5", 1, 1, true},
        {"true", 0, 0, true},
        {"YES", 0, 0, true},
        {"no", 0, 0, false},
        {"-0001", -1, -1, true},
        {"\xD9\xA3", 0, 0, false}, // an Arabic-Indic three
        {".", 0, 0, false},
        {"1e30", 1, 1e30F, true},
        {"1e39", 1, largestFloat, true},
        {"-1e999999999999999999999", -1, -largestFloat, true},
        {"1e-999999999999", 1, 0, true},
        {std::string(400, '9'), largestInteger, largestFloat, true},
        {"-" + std::string(400, '9'), smallestInteger, -largestFloat, true},
        {"0." + std::string(400, '0') + "1", 0, 0, false},
        {std::string(400, '0') + "8", 8, 8, true},
        {"9223372036854775808", largestInteger, 9223372036854775808.0F, true},
        {"-9223372036854775808", smallestInteger, -9223372036854775808.0F, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(integerValue(c.text), c.integer) << c.text;
        EXPECT_EQ(floatValue(c.text), c.floating) << c.text;
        EXPECT_EQ(boolValue(c.text), c.boolean) << c.text;
    }
    EXPECT_EQ(intValue("99999999999"), std::numeric_limits<int>::max());
}

TEST(Numbers, saturateWhenNarrowedAndGiveZeroForNotANumber) {
    EXPECT_EQ(truncated(1.99), 1);
    EXPECT_EQ(truncated(-1.99), -1);
    EXPECT_EQ(truncated(std::nan("")), 0);
    EXPECT_EQ(truncated(9223372036854775808.0), largestInteger);
    EXPECT_EQ(truncated(-9223372036854775808.0), smallestInteger);
    EXPECT_EQ(truncated(-std::numeric_limits<double>::infinity()), smallestInteger);
    EXPECT_EQ(narrowed(1e300), largestFloat);
    EXPECT_EQ(narrowed(std::nan("")), 0);
}

TEST(Numbers, showNoMoreDigitsThanSinglePrecisionHolds) {
    EXPECT_EQ(text(1.5F), "1.5");
    EXPECT_EQ(text(100.0F / 60.0F), "1.666667");
    EXPECT_EQ(text(2.0F), "2");
    EXPECT_EQ(text(largestFloat), "3.402823e+38");
    EXPECT_EQ(text(smallestInteger), "-9223372036854775808");
}

} // namespace
} // namespace zarvil::numbers
