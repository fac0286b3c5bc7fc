#pragma once

#include "macos/fakes/core_foundation.h"
#include "platform/property_dictionary.h"

#include <optional>

namespace tarvo {

/// Makes the object, translates it and releases it.
std::optional<PropertyDictionary> translate(const fakes::Value& value);
std::optional<PropertyDictionary> translateNull();

} // namespace tarvo
