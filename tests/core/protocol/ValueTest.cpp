#include "protocol/Value.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zarvil {
namespace {

TEST(Dictionary, readsForgivinglyWhateverTheTypeOfTheValue) {
    const Dictionary dictionary{{"text", "12 apples"}, {"yes", "YES"},
                                {"list", Array{1, 2}}, {"nested", Dictionary{{"a", 1}}},
                                {"data", Data(3)},     {"half", 0.5},
                                {"nan", std::nan("")}, {"on", true}};
    struct Case {
        std::string key;
        bool boolean;
        std::int64_t integer;
        float floating;
    };
    for (const Case& c :
         {Case{"text", true, 12, 12}, Case{"yes", true, 0, 0}, Case{"list", false, 0, 0},
          Case{"nested", false, 0, 0}, Case{"data", false, 0, 0}, Case{"half", true, 0, 0.5F},
          Case{"nan", false, 0, 0}, Case{"on", true, 1, 1}, Case{"missing", false, 0, 0}}) {
        EXPECT_EQ(dictionary.boolForKey(c.key), c.boolean) << c.key;
        EXPECT_EQ(dictionary.integerForKey(c.key), c.integer) << c.key;
        EXPECT_EQ(dictionary.floatForKey(c.key), c.floating) << c.key;
    }
    EXPECT_EQ(dictionary.stringForKey("on"), nullptr);
    EXPECT_EQ(dictionary.arrayForKey("nested"), nullptr);
    EXPECT_EQ(dictionary.dictionaryForKey("list"), nullptr);
}

TEST(Dictionary, holdsEveryKeyOnceWithItsLastValueHoweverItIsFilled) {
    Dictionary oneByOne;
    Dictionary::Entries entries;
    for (const char* key : {"b", "c", "a", "b", "", "c"}) {
        const Value value(static_cast<int>(entries.size()));
        oneByOne.setObject(key, value);
        entries.push_back({key, value});
    }
    EXPECT_EQ(oneByOne, Dictionary::ofEntries(entries));
    EXPECT_EQ(oneByOne, (Dictionary{{"", 4}, {"a", 2}, {"b", 3}, {"c", 5}}));
    EXPECT_EQ(oneByOne.objectForKey("bb"), nullptr);
}

TEST(Dictionary, keepsItsEntriesWhenACopyChanges) {
    const Dictionary first{{"a", 1}, {"b", 2}};
    for (const char* key : {"a", "c"}) {
        Dictionary copy = first;
        copy.setObject(key, 3);
        EXPECT_EQ(copy.integerForKey(key), 3);
        EXPECT_EQ(copy.integerForKey("b"), 2);
        EXPECT_EQ(first, (Dictionary{{"a", 1}, {"b", 2}})) << key;
    }
}

TEST(Value, equalsByContentsAndNumbersByTheirValue) {
    const Value equal[][2] = {{true, 1},
                              {1, 1.0},
                              {Array{true, "a"}, Array{1.0, "a"}},
                              {Dictionary{{"k", 2}}, Dictionary{{"k", 2.0}}}};
    for (const auto& pair : equal) {
        EXPECT_EQ(pair[0], pair[1]);
        EXPECT_EQ(contentHash(pair[0]), contentHash(pair[1]));
    }
    const Value different[][2] = {{1, "1"},
                                  {0, ""},
                                  {1, 1.5},
                                  {std::int64_t{9007199254740993}, 9007199254740992.0},
                                  {Data(1), Array{0}},
                                  {Dictionary{{"k", 2}}, Dictionary{{"K", 2}}}};
    for (const auto& pair : different)
        EXPECT_FALSE(pair[0] == pair[1]);
}

} // namespace
} // namespace zarvil
