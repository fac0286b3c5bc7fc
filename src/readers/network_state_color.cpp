#include "readers/network_state_color.h"

#include <algorithm>
#include <array>

namespace tarvo {

namespace {

struct StateColor {
    std::string_view state;
    NetworkStateColor color;
};

constexpr std::array<StateColor, 7> colors{{
    {"ESTABLISHED", NetworkStateColor::green},
    {"LISTEN", NetworkStateColor::blue},
    {"CLOSE_WAIT", NetworkStateColor::orange},
    {"TIME_WAIT", NetworkStateColor::orange},
    {"CLOSING", NetworkStateColor::orange},
    {"SYN_SENT", NetworkStateColor::purple},
    {"SYN_RCVD", NetworkStateColor::purple},
}};

constexpr char upperCase(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

} // namespace

NetworkStateColor networkStateColor(std::string_view state) {
    const auto matches = [state](const StateColor& row) {
        return std::equal(state.begin(), state.end(), row.state.begin(), row.state.end(),
                          [](char given, char name) { return upperCase(given) == name; });
    };
    const auto* const row = std::find_if(colors.begin(), colors.end(), matches);
    return row == colors.end() ? NetworkStateColor::grey : row->color;
}

} // namespace tarvo
