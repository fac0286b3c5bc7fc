#pragma once

#include "platform/preference_store.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// The content of a preference file: one JSON object. Booleans, numbers, texts and lists of texts stand for
/// themselves; 2 is an integer and 2.0 a float. A date is {"date": "2026-11-16T03:53:12Z"}, which no text can
/// be taken for. What is none of these belongs to somebody else and is carried along as it is.
struct PreferenceDocument {
    std::map<std::string, PreferenceValue, std::less<>> values{};
    std::map<std::string, std::string, std::less<>> others{}; ///< key to JSON text
    bool operator==(const PreferenceDocument&) const = default;
};

/// Absent when the text is not a JSON object, is not UTF-8, or is nested deeper than any honest file. A text
/// of blanks holds nothing.
std::optional<PreferenceDocument> parsePreferences(std::string_view text);
/// Readable text, keys in order. Numbers that are not finite have no form and are left out.
std::string formatPreferences(const PreferenceDocument& document);

} // namespace tarvo::linux_platform
