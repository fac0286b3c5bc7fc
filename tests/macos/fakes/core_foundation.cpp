#include "macos/fakes/core_foundation.h"

#include "macos/fakes/ledger.h"

#include <CoreFoundation/CoreFoundation.h>
#include <fmt/format.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <memory>

namespace tarvo::fakes {
namespace {

/// Objects stay here after their end, so that a use of one is noticed.
struct Object {
    Value value;
    int references = 1;
    std::vector<const void*> keys{};
    std::vector<const void*> values{};
};

std::map<const void*, std::unique_ptr<Object>>& objects() {
    static std::map<const void*, std::unique_ptr<Object>> instances;
    return instances;
}

Object* find(const void* reference, const std::string& user) {
    if (!expect(reference != nullptr, user + " of null")) return nullptr;
    const auto found = objects().find(reference);
    if (!expect(found != objects().end(), user + " of what is no object")) return nullptr;
    if (!expect(found->second->references > 0, user + " of an object after its end")) return nullptr;
    return found->second.get();
}

Object* find(const void* reference, Value::Kind kind, const std::string& user) {
    Object* const object = find(reference, user);
    return object && expect(object->value.kind == kind, user + " of an object of another type") ? object
                                                                                                : nullptr;
}

std::vector<const void*> makeAll(const std::vector<Value>& values) {
    std::vector<const void*> made;
    for (const auto& value : values)
        made.push_back(makeObject(value));
    return made;
}

CFTypeID typeOf(Value::Kind kind) {
    switch (kind) {
    case Value::Kind::boolean:
        return 21;
    case Value::Kind::int32:
    case Value::Kind::int64:
    case Value::Kind::float32:
    case Value::Kind::float64:
        return 22;
    case Value::Kind::text:
    case Value::Kind::unwritableText:
        return 7;
    case Value::Kind::data:
        return 20;
    case Value::Kind::array:
        return 19;
    case Value::Kind::dictionary:
        return 18;
    }
    return 0;
}

bool isFloating(const Value& value) {
    return value.kind == Value::Kind::float32 || value.kind == Value::Kind::float64;
}

/// Writes the number as a type; false when that loses something.
template <typename Type>
Boolean write(const Value& number, void* place) {
    const auto written =
        isFloating(number) ? static_cast<Type>(number.floating) : static_cast<Type>(number.whole);
    std::memcpy(place, &written, sizeof written);
    const bool exact = isFloating(number) ? !(static_cast<double>(written) < number.floating) &&
                                                !(static_cast<double>(written) > number.floating)
                                          : static_cast<std::int64_t>(written) == number.whole;
    return exact ? 1 : 0;
}

CFIndex utf16Length(const std::string& text) {
    CFIndex length = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0xF0) {
            length += 2;
        } else if ((byte & 0xC0) != 0x80) {
            ++length;
        }
    }
    return length;
}

} // namespace

CoreFoundation& coreFoundation() {
    static CoreFoundation instance;
    return instance;
}

const void* makeObject(const Value& value) {
    auto object = std::make_unique<Object>(Object{value});
    object->keys = makeAll(value.keys);
    object->values = makeAll(value.values);
    const void* const reference = object.get();
    objects().emplace(reference, std::move(object));
    ledger().taken("object");
    return reference;
}

const Value* valueOf(const void* object, const std::string& user) {
    const Object* const found = find(object, user);
    return found ? &found->value : nullptr;
}

const void* valueAt(const void* collection, std::size_t index) {
    return objects().at(collection)->values.at(index);
}

void releaseObject(const void* reference) {
    Object* const object = find(reference, "a release");
    if (!object || --object->references > 0) return;
    ledger().givenBack("object");
    for (const auto* part : object->keys)
        releaseObject(part);
    for (const auto* part : object->values)
        releaseObject(part);
}

void forgetObjects() {
    objects().clear();
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

namespace {
const char allocator = 0;
}

// Not null, as it is on the system, so that null in its place is noticed.
const CFAllocatorRef kCFAllocatorDefault = reinterpret_cast<CFAllocatorRef>(&allocator);

CFTypeRef CFRetain(CFTypeRef reference) {
    if (Object* const object = find(reference, "CFRetain")) ++object->references;
    return reference;
}

void CFRelease(CFTypeRef reference) {
    releaseObject(reference);
}

CFTypeID CFGetTypeID(CFTypeRef reference) {
    const Object* const object = find(reference, "CFGetTypeID");
    return object ? typeOf(object->value.kind) : 0;
}

CFTypeID CFStringGetTypeID() {
    return typeOf(Value::Kind::text);
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef given, const char* characters,
                                      CFStringEncoding encoding) {
    expect(given == kCFAllocatorDefault, "a string of another allocator");
    expect(encoding == kCFStringEncodingUTF8, "a string of another encoding");
    if (coreFoundation().stringsCannotBeMade) return nullptr;
    return static_cast<CFStringRef>(makeObject(text(characters)));
}

CFIndex CFStringGetLength(CFStringRef string) {
    const Value* const value = valueOf(string, "CFStringGetLength");
    return value ? utf16Length(value->text) : 0;
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding) {
    expect(encoding == kCFStringEncodingUTF8, "the size of another encoding");
    return 3 * length;
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize, CFStringEncoding encoding) {
    const Value* const value = valueOf(string, "CFStringGetCString");
    expect(encoding == kCFStringEncodingUTF8, "a text in another encoding");
    if (!value || value->kind != Value::Kind::text) return 0;
    if (bufferSize < static_cast<CFIndex>(value->text.size()) + 1) return 0;
    std::memcpy(buffer, value->text.c_str(), value->text.size() + 1);
    return 1;
}

CFTypeID CFBooleanGetTypeID() {
    return typeOf(Value::Kind::boolean);
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    const Object* const object = find(boolean, Value::Kind::boolean, "CFBooleanGetValue");
    return object && object->value.whole != 0 ? 1 : 0;
}

CFTypeID CFNumberGetTypeID() {
    return typeOf(Value::Kind::int64);
}

Boolean CFNumberIsFloatType(CFNumberRef number) {
    const Value* const value = valueOf(number, "CFNumberIsFloatType");
    return value && isFloating(*value) ? 1 : 0;
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* place) {
    const Value* const value = valueOf(number, "CFNumberGetValue");
    if (!value || !expect(CFGetTypeID(number) == CFNumberGetTypeID(), "CFNumberGetValue of another type"))
        return 0;
    switch (type) {
    case kCFNumberSInt32Type:
    case kCFNumberIntType:
        return write<std::int32_t>(*value, place);
    case kCFNumberSInt64Type:
    case kCFNumberLongType:
    case kCFNumberLongLongType:
        return write<std::int64_t>(*value, place);
    case kCFNumberFloat32Type:
    case kCFNumberFloatType:
        return write<float>(*value, place);
    case kCFNumberFloat64Type:
    case kCFNumberDoubleType:
        return write<double>(*value, place);
    default:
        expect(false, fmt::format("a number of type {}", type));
        return 0;
    }
}

CFTypeID CFArrayGetTypeID() {
    return typeOf(Value::Kind::array);
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    const Object* const object = find(array, Value::Kind::array, "CFArrayGetCount");
    return object ? static_cast<CFIndex>(object->values.size()) : 0;
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    const Object* const object = find(array, Value::Kind::array, "CFArrayGetValueAtIndex");
    const auto place = static_cast<std::size_t>(index);
    if (!object || !expect(place < object->values.size(), "a place behind the end of an array"))
        return nullptr;
    return object->values[place];
}

CFTypeID CFDictionaryGetTypeID() {
    return typeOf(Value::Kind::dictionary);
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    const Object* const object = find(dictionary, Value::Kind::dictionary, "CFDictionaryGetCount");
    return object ? static_cast<CFIndex>(object->keys.size()) : 0;
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values) {
    const Object* const object = find(dictionary, Value::Kind::dictionary, "CFDictionaryGetKeysAndValues");
    if (!object) return;
    std::copy(object->keys.begin(), object->keys.end(), keys);
    std::copy(object->values.begin(), object->values.end(), values);
}
}
