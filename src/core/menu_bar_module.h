#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarvo {

/// The six modules of the status bar, in the order used everywhere.
enum class MenuBarModule { cpu, mem, battery, temp, disk, network };

inline constexpr std::array allMenuBarModules{MenuBarModule::cpu,     MenuBarModule::mem,
                                              MenuBarModule::battery, MenuBarModule::temp,
                                              MenuBarModule::disk,    MenuBarModule::network};

/// The name under which a module is stored, e.g. "cpu"; its preference key is "menubar." followed by it.
std::string_view rawValue(MenuBarModule module);
/// Absent for any text that is not exactly a raw value.
std::optional<MenuBarModule> menuBarModule(std::string_view rawValue);

/// What the combined status item shows; the numbers are what is stored.
enum class MenuBarStyle { text = 0, graph = 1, icon = 2 };

} // namespace tarvo
