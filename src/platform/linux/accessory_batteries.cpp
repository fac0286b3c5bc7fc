#include "platform/linux/accessory_batteries.h"

#include "platform/linux/power_supply.h"

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

constexpr std::size_t addressLength = 17;

/// A hexadecimal digit in upper case; absent for anything else.
std::optional<char> upperDigit(char character) {
    if ((character >= '0' && character <= '9') || (character >= 'A' && character <= 'F')) return character;
    if (character >= 'a' && character <= 'f') return static_cast<char>(character - 'a' + 'A');
    return std::nullopt;
}

} // namespace

std::optional<std::string> accessoryAddress(std::string_view supplyName) {
    constexpr std::string_view beginning = "hid-";
    constexpr std::string_view ending = "-battery";
    if (!supplyName.starts_with(beginning) || !supplyName.ends_with(ending)) return std::nullopt;
    if (supplyName.size() != beginning.size() + addressLength + ending.size()) return std::nullopt;
    std::string address(supplyName.substr(beginning.size(), addressLength));
    for (std::size_t i = 0; i < address.size(); ++i) {
        const auto expected =
            i % 3 == 2 ? (address[i] == ':' ? std::optional(':') : std::nullopt) : upperDigit(address[i]);
        if (!expected) return std::nullopt;
        address[i] = *expected;
    }
    return address;
}

std::vector<AccessoryPower> readAccessoryBatteries(const Root& root) {
    std::vector<AccessoryPower> batteries;
    for (const auto& supply : readPowerSupplies(root)) {
        const auto address = accessoryAddress(supply.name);
        const bool tells =
            supply.scope == "Device" && supply.capacity && *supply.capacity >= 0 && *supply.capacity <= 100;
        if (address && tells) batteries.push_back({*address, static_cast<std::uint8_t>(*supply.capacity)});
    }
    return batteries;
}

} // namespace tarvo::linux_platform
