#pragma once

#include "platform/property_dictionary.h"

#include <CoreFoundation/CoreFoundation.h>

#include <optional>

namespace tarvo::macos_platform {

/// The same value as a plain one: a boolean, a whole or a floating number, a text, or a dictionary of such.
/// Absent for null and for anything else.
std::optional<PropertyValue> propertyValue(CFTypeRef object);

/// Absent for null, for anything but a dictionary, and for a dictionary with a key that is no text. Values of
/// other types than above are left out.
std::optional<PropertyDictionary> propertyDictionary(CFTypeRef object);

} // namespace tarvo::macos_platform
