#import "cocoa/support/PropertyLists.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"

#include <gtest/gtest.h>

namespace zarvil::cocoa {

namespace {

TEST(PropertyLists, comeBackAsTheyWere) {
    const Dictionary device{{"DeviceName", "Zeichen: \xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x8B"},
                            {"nul", std::string("a\0b", 3)},
                            {"on", true},
                            {"off", false},
                            {"count", std::int64_t{-5'000'000'000}},
                            {"ratio", 0.25},
                            {"data", Data{std::byte{0}, std::byte{255}}},
                            {"list", Array{1, "two", Dictionary{{"three", Array{}}}}},
                            {"empty", Dictionary{}}};
    NSDictionary* sent = toPropertyList(device);
    const Dictionary received = toDictionary(sent);
    EXPECT_EQ(received, device);
    EXPECT_NE(received.objectForKey("on")->as<bool>(), nullptr) << "a boolean stays one";
    EXPECT_NE(received.objectForKey("ratio")->as<double>(), nullptr);
    EXPECT_NE(received.objectForKey("data")->as<Data>(), nullptr);
}

TEST(PropertyLists, whatIsNoneIsLeftOutAlone) {
    NSDictionary* mixed = [NSDictionary
        dictionaryWithObjectsAndKeys:@"kept", @"text", [NSDate date], @"date", @"value",
                                     [NSNumber numberWithInt:1],
                                     [NSArray arrayWithObjects:[NSNull null], @"b", nil], @"list",
                                     nil];
    EXPECT_EQ(toDictionary(mixed), (Dictionary{{"text", "kept"}, {"list", Array{"b"}}}));
    EXPECT_EQ(toDictionary(nil), Dictionary{});
    EXPECT_FALSE(toValue(nil));

    id deep = @"core";
    for (int level = 0; level < 10'000; ++level)
        deep = [NSArray arrayWithObject:deep];
    EXPECT_TRUE(toValue(deep)) << "the outer levels stand";
}

TEST(Convert, textThatIsNotUnicodeIsReadAllTheSame) {
    EXPECT_EQ(fromCocoa(toCocoa(std::string_view("\xFF\xFEz"))), "\xC3\xBF\xC3\xBEz");
    EXPECT_EQ(fromCocoa(nil), "");
}

TEST(Guard, handsOutWhatWasRaisedAndGoesOn) {
    EXPECT_EQ(guarded([] {}), nil);
    NSException* raised = guarded([] { [NSException raise:NSGenericException format:@"why"]; });
    EXPECT_TRUE([[raised reason] isEqualToString:@"why"]);
}

} // namespace

} // namespace zarvil::cocoa
