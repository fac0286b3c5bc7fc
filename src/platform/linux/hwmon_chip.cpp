#include "platform/linux/hwmon_chip.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <tuple>

namespace tarvo::linux_platform {
namespace {

struct KindPrefix {
    std::string_view prefix;
    HwmonKind kind;
};

constexpr std::array<KindPrefix, 5> kindPrefixes{{
    {"temp", HwmonKind::temperature},
    {"fan", HwmonKind::fan},
    {"power", HwmonKind::power},
    {"in", HwmonKind::voltage},
    {"curr", HwmonKind::current},
}};

/// "3_input" and "3_average" give 3.
std::optional<int> inputIndex(std::string_view rest) {
    const auto underscore = rest.find('_');
    if (underscore == std::string_view::npos) return std::nullopt;
    const auto what = rest.substr(underscore);
    const auto index = parseNumber<std::uint16_t>(rest.substr(0, underscore));
    return index && (what == "_input" || what == "_average") ? std::optional<int>(*index) : std::nullopt;
}

std::vector<HwmonInput> readInputs(const std::string& folder) {
    std::vector<HwmonInput> inputs;
    for (const auto& name : folderEntries(folder)) {
        auto input = parseHwmonAttribute(name);
        if (!input) continue;
        const auto stem = folder + "/" + name.substr(0, name.find('_'));
        input->label = readAttribute(stem + "_label").value_or("");
        input->hasFault = readNumber<int>(stem + "_fault") == 1;
        inputs.push_back(std::move(*input));
    }
    std::sort(inputs.begin(), inputs.end(), [](const auto& a, const auto& b) {
        return std::tie(a.kind, a.index, a.attribute) < std::tie(b.kind, b.index, b.attribute);
    });
    return inputs;
}

std::optional<HwmonChip> readChip(const Root& root, const std::string& entry) {
    const auto path = "/sys/class/hwmon/" + entry;
    // Old drivers keep their attributes one level down.
    for (const auto& folder : {path, path + "/device"}) {
        auto name = readAttribute(root.path(folder + "/name"));
        if (!name) continue;
        const auto opened = root.path(folder);
        return HwmonChip{std::move(*name), root.resolve(path + "/device").value_or(""), opened,
                         readInputs(opened)};
    }
    return std::nullopt;
}

} // namespace

std::optional<HwmonInput> parseHwmonAttribute(std::string_view name) {
    for (const auto& [prefix, kind] : kindPrefixes) {
        if (!name.starts_with(prefix)) continue;
        const auto index = inputIndex(name.substr(prefix.size()));
        if (index) return HwmonInput{kind, *index, std::string(name), "", false};
    }
    return std::nullopt;
}

std::vector<HwmonChip> readHwmonChips(const Root& root) {
    std::vector<HwmonChip> chips;
    for (const auto& entry : folderEntries(root.path("/sys/class/hwmon"))) {
        auto chip = readChip(root, entry);
        if (chip) chips.push_back(std::move(*chip));
    }
    std::stable_sort(chips.begin(), chips.end(), [](const auto& a, const auto& b) {
        return std::tie(a.name, a.devicePath) < std::tie(b.name, b.devicePath);
    });
    return chips;
}

} // namespace tarvo::linux_platform
