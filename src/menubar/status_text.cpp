#include "menubar/status_text.h"

#include "menubar/menu_bar_module_table.h"
#include "menubar/upper_case.h"
#include "readers/format_bytes_per_second.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace tarvo {
namespace {

constexpr std::string_view applicationName = "Tarvo";

void writePart(std::string& text, MenuBarModule module, const StatsSnapshot& snapshot,
               const Settings& settings) {
    const auto out = std::back_inserter(text);
    switch (module) {
    case MenuBarModule::cpu:
        fmt::format_to(out, "CPU {:.0f}%", snapshot.cpu);
        return;
    case MenuBarModule::mem:
        fmt::format_to(out, "RAM {:.0f}%", snapshot.memPercent);
        return;
    case MenuBarModule::battery:
        fmt::format_to(out, "\U0001F50B{}%", snapshot.battery->percentage);
        return;
    case MenuBarModule::temp:
        text += settings.formatTemperature(*snapshot.cpuTemp);
        return;
    case MenuBarModule::disk:
        fmt::format_to(out, "Disk {:.0f}GB", *snapshot.diskFreeGB);
        return;
    case MenuBarModule::network:
        text += "\u2193";
        text += formatBytesPerSecond(snapshot.netInRate);
        return;
    }
}

void writeToolTipLine(std::string& text, MenuBarModule module, std::string_view value, AppLanguage language) {
    text += label(module, language);
    text += ": ";
    text += value;
}

// A graph or an icon is drawn from processor and memory, whether their modules are enabled or not.
bool belongsToCombinedItem(MenuBarModule module, const Settings& settings) {
    const bool isDrawn = module == MenuBarModule::cpu || module == MenuBarModule::mem;
    return (isDrawn && settings.menuBarStyle() != MenuBarStyle::text) ||
           settings.isMenuBarModuleEnabled(module);
}

} // namespace

bool hasValue(MenuBarModule module, const StatsSnapshot& snapshot) {
    switch (module) {
    case MenuBarModule::battery:
        return snapshot.battery.has_value();
    case MenuBarModule::temp:
        return snapshot.cpuTemp.has_value();
    case MenuBarModule::disk:
        return snapshot.diskFreeGB.has_value();
    default:
        return true;
    }
}

void writeCombinedText(std::string& text, const StatsSnapshot& snapshot, const Settings& settings) {
    text.clear();
    for (const auto module : allMenuBarModules) {
        if (!settings.isMenuBarModuleEnabled(module) || !hasValue(module, snapshot)) continue;
        if (!text.empty()) text += " \u00B7 ";
        writePart(text, module, snapshot, settings);
    }
    if (text.empty()) text = applicationName;
}

LoadBand loadBand(const StatsSnapshot& snapshot) {
    const double load = std::max(snapshot.cpu, snapshot.memPercent);
    if (load < 60) return LoadBand::normal;
    return load < 85 ? LoadBand::raised : LoadBand::high;
}

SystemColor iconTint(const StatsSnapshot& snapshot) {
    switch (loadBand(snapshot)) {
    case LoadBand::normal:
        return SystemColor::green;
    case LoadBand::raised:
        return SystemColor::orange;
    case LoadBand::high:
        break;
    }
    return SystemColor::red;
}

std::optional<std::string> moduleValue(MenuBarModule module, const StatsSnapshot& snapshot,
                                       const Settings& settings) {
    if (!hasValue(module, snapshot)) return std::nullopt;
    switch (module) {
    case MenuBarModule::cpu:
        return fmt::format("{:.0f}%", snapshot.cpu);
    case MenuBarModule::mem:
        return fmt::format("{:.0f}%", snapshot.memPercent);
    case MenuBarModule::battery:
        return fmt::format("{}%", snapshot.battery->percentage);
    case MenuBarModule::temp:
        return settings.formatTemperature(*snapshot.cpuTemp);
    case MenuBarModule::disk:
        return fmt::format("{:.0f}GB", *snapshot.diskFreeGB);
    case MenuBarModule::network:
        break;
    }
    return formatBytesPerSecond(snapshot.netInRate);
}

std::optional<SystemColor> moduleTint(MenuBarModule module, const StatsSnapshot& snapshot) {
    constexpr std::int64_t lowBatteryPercent = 19;
    constexpr double hotCelsius = 80;
    const auto& battery = snapshot.battery;
    const bool lowBattery = module == MenuBarModule::battery && battery && !battery->isPluggedIn &&
                            battery->percentage <= lowBatteryPercent;
    const bool hot = module == MenuBarModule::temp && snapshot.cpuTemp && *snapshot.cpuTemp >= hotCelsius;
    return lowBattery || hot ? std::optional(SystemColor::red) : std::nullopt;
}

AttributedTitle stackedTitle(std::string_view label, std::string_view value,
                             std::optional<SystemColor> tint) {
    constexpr TextFont labelFont{.pointSize = 8, .weight = FontWeight::medium, .monospacedDigits = false};
    constexpr TextFont valueFont{.pointSize = 10, .weight = FontWeight::semibold, .monospacedDigits = true};
    return {.runs = {{upperCased(label) + "\n", labelFont, SystemColor::secondaryLabel},
                     {std::string(value), valueFont, tint.value_or(SystemColor::label)}},
            .centred = true,
            .maximumLineHeight = 9};
}

void writeCombinedToolTip(std::string& text, const StatsSnapshot& snapshot, const Settings& settings,
                          AppLanguage language) {
    text.clear();
    for (const auto module : allMenuBarModules) {
        if (!belongsToCombinedItem(module, settings)) continue;
        const auto value = moduleValue(module, snapshot, settings);
        if (!value) continue;
        if (!text.empty()) text += '\n';
        writeToolTipLine(text, module, *value, language);
    }
    if (text.empty()) text = applicationName;
}

std::string moduleToolTip(MenuBarModule module, std::string_view value, AppLanguage language) {
    std::string text;
    writeToolTipLine(text, module, value, language);
    return text;
}

} // namespace tarvo
