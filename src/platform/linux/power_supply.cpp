#include "platform/linux/power_supply.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <array>
#include <string_view>
#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view powerSupplyClass = "/sys/class/power_supply";

struct TextAttribute {
    const char* name;
    std::string PowerSupply::*field;
};
constexpr std::array<TextAttribute, 4> textAttributes{{
    {"type", &PowerSupply::type},
    {"scope", &PowerSupply::scope},
    {"status", &PowerSupply::status},
    {"model_name", &PowerSupply::modelName},
}};

struct NumberAttribute {
    const char* name;
    std::optional<std::int64_t> PowerSupply::*field;
};
constexpr std::array<NumberAttribute, 15> numberAttributes{{
    {"present", &PowerSupply::present},
    {"online", &PowerSupply::online},
    {"energy_now", &PowerSupply::energyNow},
    {"energy_full", &PowerSupply::energyFull},
    {"energy_full_design", &PowerSupply::energyFullDesign},
    {"charge_now", &PowerSupply::chargeNow},
    {"charge_full", &PowerSupply::chargeFull},
    {"charge_full_design", &PowerSupply::chargeFullDesign},
    {"power_now", &PowerSupply::powerNow},
    {"current_now", &PowerSupply::currentNow},
    {"voltage_now", &PowerSupply::voltageNow},
    {"voltage_min_design", &PowerSupply::voltageMinDesign},
    {"capacity", &PowerSupply::capacity},
    {"time_to_empty_now", &PowerSupply::timeToEmptyNow},
    {"cycle_count", &PowerSupply::cycleCount},
}};

bool isOfSystem(const PowerSupply& supply) {
    return supply.scope.empty() || supply.scope == "System";
}

} // namespace

PowerSupply makePowerSupply(std::string name, const SupplyAttribute& attribute) {
    PowerSupply supply;
    supply.name = std::move(name);
    for (const auto& text : textAttributes)
        supply.*text.field = attribute(text.name).value_or("");
    for (const auto& number : numberAttributes) {
        const auto text = attribute(number.name);
        if (text) supply.*number.field = parseNumber<std::int64_t>(*text);
    }
    return supply;
}

std::vector<PowerSupply> readPowerSupplies(const Root& root) {
    std::vector<PowerSupply> supplies;
    for (const auto& name : folderEntries(root.path(powerSupplyClass))) {
        const auto folder = powerSupplyFolder(root, name);
        supplies.push_back(makePowerSupply(
            name, [&folder](const char* attribute) { return readAttribute(folder + "/" + attribute); }));
    }
    return supplies;
}

bool isSystemBattery(const PowerSupply& supply) {
    return supply.type == "Battery" && isOfSystem(supply) && supply.present.value_or(1) == 1;
}

bool isCharger(const PowerSupply& supply) {
    const bool charges =
        supply.type == "Mains" || supply.type.starts_with("USB") || supply.type == "Wireless";
    return charges && supply.scope != "Device";
}

std::vector<std::string> systemBatteryNames(const Root& root) {
    std::vector<std::string> names;
    for (const auto& name : folderEntries(root.path(powerSupplyClass))) {
        const auto folder = powerSupplyFolder(root, name);
        PowerSupply supply;
        supply.type = readAttribute(folder + "/type").value_or("");
        supply.scope = readAttribute(folder + "/scope").value_or("");
        if (isSystemBattery(supply)) names.push_back(name);
    }
    return names;
}

std::string powerSupplyFolder(const Root& root, const std::string& name) {
    return root.path(powerSupplyClass) + "/" + name;
}

} // namespace tarvo::linux_platform
