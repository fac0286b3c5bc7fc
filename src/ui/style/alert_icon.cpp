#include "ui/style/alert_icon.h"

#include <algorithm>
#include <array>
#include <string>

namespace tarvo::ui {
namespace {

struct Rule {
    std::string_view word;
    AlertIcon icon;
};

constexpr AlertIcon processor{"cpu.fill", colors::orange};
constexpr AlertIcon drive{"internaldrive.fill", colors::indigo};
constexpr AlertIcon battery{"battery.25percent", colors::red};
constexpr AlertIcon bell{"bell.fill", colors::gray};

constexpr std::array<Rule, 6> rules{{{"cpu", processor},
                                     {"disk", drive},
                                     {"místa", drive},
                                     {"space", drive},
                                     {"baterie", battery},
                                     {"battery", battery}}};

// Enough of Unicode for the words above: ASCII and the letters of Latin-1 (UTF-8 lead byte C3).
std::string lowercased(std::string_view text) {
    std::string lower(text);
    unsigned char previous = 0;
    for (char& character : lower) {
        const auto byte = static_cast<unsigned char>(character);
        const bool ascii = byte >= 'A' && byte <= 'Z';
        const bool latin = previous == 0xC3 && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        previous = byte;
        if (ascii || latin) character = static_cast<char>(byte + 0x20);
    }
    return lower;
}

} // namespace

AlertIcon alertIcon(std::string_view title) {
    const std::string lower = lowercased(title);
    const auto match = std::find_if(rules.begin(), rules.end(), [&lower](const Rule& rule) {
        return lower.find(rule.word) != std::string::npos;
    });
    return match == rules.end() ? bell : match->icon;
}

} // namespace tarvo::ui
