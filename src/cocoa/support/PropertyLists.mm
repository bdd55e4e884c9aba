#import "cocoa/support/PropertyLists.h"

#import "cocoa/support/Convert.h"

#include <cstring>

namespace zarvil::cocoa {

namespace {

constexpr int deepestNesting = 64;

/// Booleans share one class of numbers; other numbers may have their type code, not their class.
bool isBoolean(NSNumber* number) {
    NSNumber* boolean = [NSNumber numberWithBool:YES];
    return [number isKindOfClass:[boolean class]] &&
           std::strcmp([number objCType], [boolean objCType]) == 0;
}

struct ToObject {
    id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
    id operator()(std::int64_t value) const { return [NSNumber numberWithLongLong:value]; }
    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }
    id operator()(const std::string& value) const { return toCocoa(value); }
    id operator()(const Data& value) const {
        return [NSData dataWithBytes:value.data() length:value.size()];
    }
    id operator()(const Array& value) const {
        NSMutableArray* array = [NSMutableArray arrayWithCapacity:value.size()];
        for (const Value& element : value)
            [array addObject:toPropertyList(element)];
        return array;
    }
    id operator()(const Dictionary& value) const { return toPropertyList(value); }
};

std::optional<Value> decode(id object, int depth);

Value decodeNumber(NSNumber* number) {
    if (isBoolean(number))
        return static_cast<bool>([number boolValue]);
    const char type = *[number objCType];
    if (type == 'f' || type == 'd')
        return [number doubleValue];
    return std::int64_t{[number longLongValue]};
}

Value decodeData(NSData* data) {
    const auto* bytes = static_cast<const std::byte*>([data bytes]);
    return bytes ? Data(bytes, bytes + [data length]) : Data();
}

Value decodeArray(NSArray* array, int depth) {
    Array decoded;
    for (NSUInteger index = 0; index < [array count]; ++index) {
        if (auto element = decode([array objectAtIndex:index], depth + 1))
            decoded.push_back(std::move(*element));
    }
    return decoded;
}

Dictionary decodeDictionary(NSDictionary* dictionary, int depth) {
    Dictionary::Entries decoded;
    NSEnumerator* keys = [dictionary keyEnumerator];
    while (id key = [keys nextObject]) {
        if (![key isKindOfClass:[NSString class]])
            continue;
        if (auto value = decode([dictionary objectForKey:key], depth + 1))
            decoded.push_back({fromCocoa(key), std::move(*value)});
    }
    return Dictionary::ofEntries(std::move(decoded));
}

std::optional<Value> decode(id object, int depth) {
    if (depth > deepestNesting)
        return std::nullopt;
    if ([object isKindOfClass:[NSString class]])
        return fromCocoa(object);
    if ([object isKindOfClass:[NSNumber class]])
        return decodeNumber(object);
    if ([object isKindOfClass:[NSData class]])
        return decodeData(object);
    if ([object isKindOfClass:[NSArray class]])
        return decodeArray(object, depth);
    if ([object isKindOfClass:[NSDictionary class]])
        return decodeDictionary(object, depth);
    return std::nullopt;
}

} // namespace

id toPropertyList(const Value& value) { return std::visit(ToObject(), value.storage()); }

NSDictionary* toPropertyList(const Dictionary& dictionary) {
    NSMutableDictionary* object = [NSMutableDictionary dictionaryWithCapacity:dictionary.count()];
    for (const auto& [key, value] : dictionary.entries())
        [object setObject:toPropertyList(value) forKey:toCocoa(key)];
    return object;
}

std::optional<Value> toValue(id object) { return decode(object, 0); }

Dictionary toDictionary(NSDictionary* dictionary) { return decodeDictionary(dictionary, 0); }

} // namespace zarvil::cocoa
