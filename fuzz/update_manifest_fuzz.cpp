#include "update/update_info.h"
#include "update/version_order.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Whatever versions a manifest names, at most one of two is the newer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto info = tarvo::parseUpdateManifest(text);
    const std::string_view version = info ? std::string_view(info->version) : text;
    const std::string_view other = text.substr(text.size() / 2);
    if (tarvo::isNewer(version, other) && tarvo::isNewer(other, version)) std::abort();
    if (tarvo::isNewer(version, version)) std::abort();
    return 0;
}
