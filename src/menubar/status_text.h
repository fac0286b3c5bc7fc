#pragma once

#include "core/settings.h"
#include "core/stats_snapshot.h"
#include "localization/app_language.h"
#include "platform/status_bar.h"

#include <optional>
#include <string>
#include <string_view>

/// From a snapshot to what the status bar says. Pure functions of their arguments and of the settings at the
/// moment of the call; numbers are written the same way in every locale.
namespace tarvo {

/// Whether the snapshot knows what the module shows; always for processor, memory and network.
bool hasValue(MenuBarModule module, const StatsSnapshot& snapshot);

/// Writes the combined item's line over `text`, e.g. "CPU 23% · RAM 48%": the enabled modules that have a
/// value, "Tarvo" when there is none. Not localised.
void writeCombinedText(std::string& text, const StatsSnapshot& snapshot, const Settings& settings);

/// How busy the machine is: the larger of processor and memory load.
enum class LoadBand {
    normal, ///< below 60 %
    raised, ///< below 85 %
    high
};
LoadBand loadBand(const StatsSnapshot& snapshot);
/// The combined icon's colour: green, orange or red by the load band.
SystemColor iconTint(const StatsSnapshot& snapshot);

/// What a module's own item says, e.g. "48%"; absent when the snapshot does not know it.
std::optional<std::string> moduleValue(MenuBarModule module, const StatsSnapshot& snapshot,
                                       const Settings& settings);
/// Red for a battery of at most 19 % that is not plugged in and for a temperature of 80 °C and more.
std::optional<SystemColor> moduleTint(MenuBarModule module, const StatsSnapshot& snapshot);

/// Two centred lines: the label in capitals over the value.
AttributedTitle stackedTitle(std::string_view label, std::string_view value, std::optional<SystemColor> tint);

/// Writes the combined item's facts over `text`, a line each, e.g. "Memory: 48%": the enabled modules that
/// have a value, and whatever the graph or the icon shows; "Tarvo" when there is none.
void writeCombinedToolTip(std::string& text, const StatsSnapshot& snapshot, const Settings& settings,
                          AppLanguage language);
/// The same for a module's own item.
std::string moduleToolTip(MenuBarModule module, std::string_view value, AppLanguage language);

} // namespace tarvo
