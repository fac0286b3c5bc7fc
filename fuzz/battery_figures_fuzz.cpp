// What power supplies and sensors say: numbers of any size and sign, words and names, from the lines of their
// files to the battery, the power and the values that are shown. A line "battery/attribute=value" is a file
// of a supply.

#include "platform/io_registry.h"
#include "platform/linux/battery_describer.h"
#include "platform/linux/power_supply.h"
#include "platform/power_sources.h"
#include "sensors/battery_reader.h"
#include "sensors/format_minutes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace tarvo;
using namespace tarvo::linux_platform;

namespace {

using Files = std::map<std::string, std::map<std::string, std::string>>;

Files filesOf(std::string_view text) {
    Files files;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const auto slash = line.find('/');
        const auto equals = line.find('=');
        if (slash == std::string_view::npos || equals == std::string_view::npos || slash > equals) continue;
        files[std::string(line.substr(0, slash))][std::string(line.substr(slash + 1, equals - slash - 1))] =
            line.substr(equals + 1);
    }
    return files;
}

std::vector<PowerSupply> suppliesOf(const Files& files) {
    std::vector<PowerSupply> supplies;
    for (const auto& [name, attributes] : files) {
        supplies.push_back(makePowerSupply(name, [&attributes = attributes](const char* attribute) {
            const auto found = attributes.find(attribute);
            return found == attributes.end() ? std::nullopt : std::optional(found->second);
        }));
    }
    return supplies;
}

/// One description, as a power source and a registry entry.
class Described : public PowerSources, public IORegistry {
public:
    explicit Described(BatteryDescription description) : description_(std::move(description)) {}
    std::optional<PowerSourceList> descriptions() override { return PowerSourceList{description_.source}; }
    std::optional<std::vector<PropertyDictionary>> services(std::string_view) override {
        return std::vector{description_.registryEntry};
    }
    std::optional<PropertyDictionary> properties(std::string_view,
                                                 std::span<const std::string_view>) override {
        return description_.registryEntry;
    }

private:
    BatteryDescription description_;
};

void check(const BatteryDescription& description) {
    Described machine(description);
    const auto battery = readBatteryInfo(machine, machine);
    if (!battery) std::abort(); // described, so its charge is known
    if (battery->percentage < 0 || battery->percentage > 100) std::abort();
    for (const auto minutes : {battery->timeToEmptyMinutes, battery->timeToFullMinutes}) {
        if (minutes && (*minutes < 1 || formatMinutes(*minutes).empty())) std::abort();
    }
    if (battery->cycleCount && *battery->cycleCount < 1) std::abort();
    if (battery->healthPercent && *battery->healthPercent > 100) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto supplies = suppliesOf(filesOf({reinterpret_cast<const char*>(data), size}));
    BatteryDescriber describer;
    // The second time there is a rate to take the mean of.
    for (int reading = 0; reading < 2; ++reading) {
        if (const auto description = describer.describe(supplies)) check(*description);
    }
    isFirmwareBusy(supplies);
    return 0;
}
