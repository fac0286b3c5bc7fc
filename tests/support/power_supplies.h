#pragma once

#include "platform/linux/power_supply.h"

#include <string>

namespace tarvo::linux_platform {

/// A battery that tells energy: mWh and mW, as its words are read more easily.
inline PowerSupply energyBattery(std::string status, int now, int full, int power) {
    PowerSupply battery;
    battery.name = "BAT0";
    battery.type = "Battery";
    battery.status = std::move(status);
    battery.energyNow = now * 1000;
    battery.energyFull = full * 1000;
    battery.powerNow = power * 1000;
    return battery;
}

/// A battery that tells charge: mAh and mA.
inline PowerSupply chargeBattery(std::string status, int now, int full, int current) {
    PowerSupply battery;
    battery.name = "BAT1";
    battery.type = "Battery";
    battery.status = std::move(status);
    battery.chargeNow = now * 1000;
    battery.chargeFull = full * 1000;
    battery.currentNow = current * 1000;
    return battery;
}

/// A battery that tells a percentage alone.
inline PowerSupply plainBattery(std::string status, int capacity) {
    PowerSupply battery;
    battery.name = "battery";
    battery.type = "Battery";
    battery.status = std::move(status);
    battery.capacity = capacity;
    return battery;
}

inline PowerSupply charger(std::string type, int online) {
    PowerSupply supply;
    supply.name = "AC";
    supply.type = std::move(type);
    supply.online = online;
    return supply;
}

} // namespace tarvo::linux_platform
