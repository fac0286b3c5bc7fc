#include "platform/linux/preference_document.h"

#include "platform/iso8601.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvo::linux_platform {
namespace {

using JSON = nlohmann::json;

constexpr int deepestNesting = 32;

/// How deep brackets are nested, texts left aside. Looked at first: deeper values would be walked by
/// recursion.
int nesting(std::string_view text) {
    int depth = 0;
    int deepest = 0;
    bool inText = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        if (inText && letter == '\\') {
            ++i;
        } else if (letter == '"') {
            inText = !inText;
        } else if (!inText && (letter == '{' || letter == '[')) {
            deepest = std::max(deepest, ++depth);
        } else if (!inText && (letter == '}' || letter == ']')) {
            --depth;
        }
    }
    return deepest;
}

std::optional<PreferenceValue> decodeList(const JSON& json) {
    std::vector<std::string> texts;
    for (const auto& element : json) {
        if (!element.is_string()) return std::nullopt;
        texts.push_back(element.get<std::string>());
    }
    return texts;
}

std::optional<PreferenceValue> decodeDate(const JSON& json) {
    if (json.size() != 1 || !json.contains("date") || !json["date"].is_string()) return std::nullopt;
    return parseISO8601(json["date"].get_ref<const std::string&>());
}

std::optional<PreferenceValue> decodeUnsigned(std::uint64_t number) {
    if (!std::in_range<std::int64_t>(number)) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

/// Absent for a value that is none of ours.
std::optional<PreferenceValue> decode(const JSON& json) {
    switch (json.type()) {
    case JSON::value_t::boolean:
        return json.get<bool>();
    case JSON::value_t::number_integer:
        return json.get<std::int64_t>();
    case JSON::value_t::number_unsigned:
        return decodeUnsigned(json.get<std::uint64_t>());
    case JSON::value_t::number_float:
        return json.get<double>();
    case JSON::value_t::string:
        return json.get<std::string>();
    case JSON::value_t::array:
        return decodeList(json);
    case JSON::value_t::object:
        return decodeDate(json);
    default:
        return std::nullopt;
    }
}

struct Encode {
    JSON operator()(const WallTime& date) const { return {{"date", formatISO8601(date)}}; }
    /// Null, which is no value, for a number that JSON cannot hold.
    JSON operator()(double number) const { return std::isfinite(number) ? JSON(number) : JSON(); }
    template <typename Value>
    JSON operator()(const Value& value) const {
        return value;
    }
};

} // namespace

std::optional<PreferenceDocument> parsePreferences(std::string_view text) {
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) return PreferenceDocument{};
    if (nesting(text) > deepestNesting) return std::nullopt;
    const JSON json = JSON::parse(text, nullptr, false);
    if (!json.is_object()) return std::nullopt;
    PreferenceDocument document;
    for (const auto& [key, value] : json.items()) {
        if (auto decoded = decode(value)) {
            document.values.emplace(key, std::move(*decoded));
        } else {
            document.others.emplace(key, value.dump());
        }
    }
    return document;
}

std::string formatPreferences(const PreferenceDocument& document) {
    JSON json = JSON::object();
    for (const auto& [key, text] : document.others)
        json[key] = JSON::parse(text, nullptr, false);
    for (const auto& [key, value] : document.values) {
        auto encoded = std::visit(Encode{}, value);
        if (!encoded.is_null()) json[key] = std::move(encoded);
    }
    // A text that is not UTF-8 is written with its faults replaced rather than not at all.
    return json.dump(4, ' ', false, JSON::error_handler_t::replace) + '\n';
}

} // namespace tarvo::linux_platform
