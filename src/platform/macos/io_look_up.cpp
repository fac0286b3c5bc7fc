#include "platform/macos/io_look_up.h"

#include <string>

namespace tarvo::macos_platform {
namespace {

/// Both look-ups take the dictionary over and release it, also when they fail.
CFMutableDictionaryRef matching(std::string_view className) {
    return IOServiceMatching(std::string(className).c_str());
}

} // namespace

io_service_t firstService(std::string_view className) {
    const auto dictionary = matching(className);
    return dictionary ? IOServiceGetMatchingService(kIOMainPortDefault, dictionary) : 0;
}

std::optional<io_iterator_t> allServices(std::string_view className) {
    const auto dictionary = matching(className);
    io_iterator_t iterator = 0;
    if (!dictionary ||
        IOServiceGetMatchingServices(kIOMainPortDefault, dictionary, &iterator) != KERN_SUCCESS)
        return std::nullopt;
    return iterator;
}

} // namespace tarvo::macos_platform
