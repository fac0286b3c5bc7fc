#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarvo::fakes {

/// What an object of the object system holds, written down by a test.
struct Value {
    enum class Kind {
        boolean,
        int32,
        int64,
        float32,
        float64,
        text,
        unwritableText, ///< cannot be written as UTF-8
        data,           ///< of a type that nobody reads
        array,
        dictionary
    };

    Kind kind = Kind::data;
    std::int64_t whole = 0;      ///< of booleans and whole numbers
    double floating = 0;         ///< of floating numbers
    std::string text{};          ///< UTF-8
    std::vector<Value> keys{};   ///< of a dictionary
    std::vector<Value> values{}; ///< of a dictionary or an array
};

inline Value boolean(bool value) {
    return {Value::Kind::boolean, value ? 1 : 0};
}
inline Value int32(std::int32_t value) {
    return {Value::Kind::int32, value};
}
inline Value int64(std::int64_t value) {
    return {Value::Kind::int64, value};
}
inline Value float32(float value) {
    return {Value::Kind::float32, 0, static_cast<double>(value)};
}
inline Value float64(double value) {
    return {Value::Kind::float64, 0, value};
}
inline Value text(std::string value) {
    return {Value::Kind::text, 0, 0, std::move(value)};
}
inline Value unwritableText() {
    return {Value::Kind::unwritableText};
}
inline Value data() {
    return {Value::Kind::data};
}
inline Value array(std::vector<Value> values) {
    return {Value::Kind::array, 0, 0, {}, {}, std::move(values)};
}
inline Value dictionaryOf(std::vector<Value> keys, std::vector<Value> values) {
    return {Value::Kind::dictionary, 0, 0, {}, std::move(keys), std::move(values)};
}
inline Value dictionary(std::vector<std::pair<std::string, Value>> entries) {
    std::vector<Value> keys;
    std::vector<Value> values;
    for (auto& [key, value] : entries) {
        keys.push_back(text(key));
        values.push_back(std::move(value));
    }
    return dictionaryOf(std::move(keys), std::move(values));
}

struct CoreFoundation {
    bool stringsCannotBeMade = false;
};

CoreFoundation& coreFoundation();

/// A new object, which its receiver has to release. The ledger counts it as "object".
const void* makeObject(const Value& value);
/// For the other fakes: what the object holds, and whether it is there to be used.
const Value* valueOf(const void* object, const std::string& user);
/// The object at a place of an array or dictionary, not retained.
const void* valueAt(const void* collection, std::size_t index);
void releaseObject(const void* object);
/// Forgets all objects, also those that are held.
void forgetObjects();

} // namespace tarvo::fakes
