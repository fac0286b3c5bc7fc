#include "macos/translate.h"

#include "platform/macos/property_translation.h"

namespace tarvo {

std::optional<PropertyDictionary> translate(const fakes::Value& value) {
    const void* const object = fakes::makeObject(value);
    auto dictionary = macos_platform::propertyDictionary(object);
    fakes::releaseObject(object);
    return dictionary;
}

std::optional<PropertyDictionary> translateNull() {
    return macos_platform::propertyDictionary(nullptr);
}

} // namespace tarvo
