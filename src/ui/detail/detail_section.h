#pragma once

#include "localization/localization_manager.h"
#include "ui/style/color.h"

#include <array>
#include <string_view>

namespace tarvo::ui {

/// The pages of the detail window in the order of its sidebar.
enum class DetailSection {
    overview,
    cpu,
    memory,
    battery,
    disk,
    network,
    bluetooth,
    sensors,
    processes,
    history
};

inline constexpr std::array allDetailSections{
    DetailSection::overview,  DetailSection::cpu,     DetailSection::memory,    DetailSection::battery,
    DetailSection::disk,      DetailSection::network, DetailSection::bluetooth, DetailSection::sensors,
    DetailSection::processes, DetailSection::history};

/// The name of the case, e.g. "overview".
std::string_view identifier(DetailSection section);
/// System symbol name.
std::string_view symbolName(DetailSection section);
LKey label(DetailSection section);
Color color(DetailSection section);

} // namespace tarvo::ui
