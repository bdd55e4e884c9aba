#import "cocoa/support/PropertyLists.h"

#import "cocoa/support/Convert.h"

#include "Input.h"
#include "Values.h"

#include <algorithm>

/// Property lists as Foundation's objects and back, by way of the bytes that they travel as, with
/// objects among them that are no property lists.
namespace zarvil::fuzz {

namespace {

/// Text that is no UTF-8 is read as another.
Value carried(const Value& value);

Dictionary carried(const Dictionary& dictionary) {
    // Of keys that become one any may stay: which one is the dictionary's affair.
    Dictionary result;
    for (const auto& [key, value] : dictionary.entries())
        result.setObject(cocoa::fromCocoa(cocoa::toCocoa(key)), carried(value));
    return result;
}

Value carried(const Value& value) {
    if (const auto* text = value.as<std::string>())
        return cocoa::fromCocoa(cocoa::toCocoa(*text));
    if (const auto* nested = value.as<Dictionary>())
        return carried(*nested);
    if (const auto* array = value.as<Array>()) {
        Array result;
        std::ranges::transform(*array, std::back_inserter(result),
                               [](const Value& element) { return carried(element); });
        return result;
    }
    return value;
}

bool isSame(const Value& left, const Value& right) {
    return left.storage().index() == right.storage().index() && left == right;
}

/// The same with what is no property list in it, which must cost no more than itself.
NSMutableDictionary* withStrangers(NSDictionary* list, Input& input) {
    NSMutableDictionary* mixed = [NSMutableDictionary dictionaryWithDictionary:list];
    if (input.flag())
        [mixed setObject:[NSDate date] forKey:@"a date among them"];
    if (input.flag())
        [mixed setObject:@"under no text" forKey:[NSNumber numberWithInt:7]];
    if (input.flag())
        [mixed setObject:[NSNull null] forKey:@"nothing"];
    return mixed;
}

void tryOne(Input& input) {
    const Dictionary given = arbitraryDictionary(input);
    const Dictionary expected = carried(given);
    NSDictionary* list = cocoa::toPropertyList(given);
    const Dictionary back = cocoa::toDictionary(list);
    require(isSame(Value(back), Value(expected)), "a property list comes back");
    require(cocoa::toDictionary(withStrangers(list, input)) == back, "the rest stands");
    NSData* bytes =
        [NSPropertyListSerialization dataWithPropertyList:list
                                                   format:NSPropertyListBinaryFormat_v1_0
                                                  options:0
                                                    error:nullptr];
    if (!bytes)
        return;
    id read = [NSPropertyListSerialization propertyListWithData:bytes
                                                        options:0
                                                         format:nullptr
                                                          error:nullptr];
    require(cocoa::toDictionary(read) == back, "its bytes are read as it is");
}

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    NSAutoreleasePool* pool = [NSAutoreleasePool new];
    zarvil::fuzz::Input input(bytes, size);
    zarvil::fuzz::tryOne(input);
    [pool drain];
    return 0;
}
