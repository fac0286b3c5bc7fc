#include "platform/linux/gpu_cards.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <tuple>

namespace tarvo::linux_platform {

namespace {

constexpr std::string_view cardFolder = "/sys/class/drm/";

// "card0" but not its connectors, such as "card0-DP-1".
std::optional<unsigned> cardNumber(std::string_view name) {
    constexpr std::string_view prefix = "card";
    if (!name.starts_with(prefix)) return std::nullopt;
    return parseNumber<unsigned>(name.substr(prefix.size()));
}

std::string targetName(const std::string& link) {
    return std::string(lastComponent(linkText(link).value_or("")));
}

GPUCard describe(const Root& root, const std::string& name, unsigned number) {
    GPUCard card;
    card.folder = std::string(cardFolder) + name;
    const auto device = card.folder + "/device";
    card.driver = targetName(root.path(device + "/driver"));
    card.address = lastComponent(root.resolve(device).value_or(""));
    card.startedTheScreen = readNumber<int>(root.path(device + "/boot_vga")) == 1;
    card.number = number;
    return card;
}

} // namespace

std::vector<GPUCard> listGPUCards(const Root& root) {
    std::vector<GPUCard> cards;
    for (const auto& name : folderEntries(root.path("/sys/class/drm"))) {
        if (const auto number = cardNumber(name)) cards.push_back(describe(root, name, *number));
    }
    const auto place = [](const GPUCard& card) {
        return std::tuple<bool, const std::string&, unsigned>(!card.startedTheScreen, card.address,
                                                              card.number);
    };
    std::sort(cards.begin(), cards.end(),
              [&place](const GPUCard& left, const GPUCard& right) { return place(left) < place(right); });
    return cards;
}

bool isSleeping(const Root& root, const GPUCard& card) {
    const auto status = readAttribute(root.path(card.folder + "/device/power/runtime_status"));
    return status == "suspended" || status == "suspending";
}

} // namespace tarvo::linux_platform
