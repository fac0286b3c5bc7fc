#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// One entry of the kernel's power supplies as it reads now; an attribute that is missing or unreadable is
/// absent. Documentation/ABI/testing/sysfs-class-power of the kernel.
struct PowerSupply {
    std::string name;
    std::string type;   ///< "Battery", "Mains", "USB", ...; empty when unreadable
    std::string scope;  ///< "System", "Device" or empty
    std::string status; ///< "Charging", "Discharging", "Not charging", "Full", "Unknown" or empty
    std::string modelName;
    std::optional<std::int64_t> present;
    std::optional<std::int64_t> online;
    std::optional<std::int64_t> energyNow; ///< uWh, as the next two
    std::optional<std::int64_t> energyFull;
    std::optional<std::int64_t> energyFullDesign;
    std::optional<std::int64_t> chargeNow; ///< uAh, as the next two
    std::optional<std::int64_t> chargeFull;
    std::optional<std::int64_t> chargeFullDesign;
    std::optional<std::int64_t> powerNow;         ///< uW
    std::optional<std::int64_t> currentNow;       ///< uA; negative while discharging on some machines
    std::optional<std::int64_t> voltageNow;       ///< uV
    std::optional<std::int64_t> voltageMinDesign; ///< uV
    std::optional<std::int64_t> capacity;         ///< percent
    std::optional<std::int64_t> timeToEmptyNow;   ///< s
    std::optional<std::int64_t> cycleCount;
};

/// One attribute's line without the line feed at its end; absent when it cannot be read.
using SupplyAttribute = std::function<std::optional<std::string>(const char* attribute)>;

/// The entry that these attributes make; a number of another form counts as missing.
PowerSupply makePowerSupply(std::string name, const SupplyAttribute& attribute);

/// All entries by name. May wait for the firmware: not on the main thread.
std::vector<PowerSupply> readPowerSupplies(const Root& root);

/// A battery that runs the machine and is inserted; those of mice, headsets and phones are not.
bool isSystemBattery(const PowerSupply& supply);

/// A supply from outside that could charge the machine, plugged in or not.
bool isCharger(const PowerSupply& supply);

/// The names of the system batteries, without asking the firmware for their state.
std::vector<std::string> systemBatteryNames(const Root& root);

/// The folder of an entry.
std::string powerSupplyFolder(const Root& root, const std::string& name);

} // namespace tarvo::linux_platform
