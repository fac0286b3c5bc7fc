#include "platform/desktop/bluez/device_class.h"

#include <array>
#include <string_view>

namespace tarvo::desktop {

namespace {

constexpr std::uint32_t computer = 1;
constexpr std::uint32_t phone = 2;
constexpr std::uint32_t audio = 4;
constexpr std::uint32_t peripheral = 5;
constexpr std::uint32_t imaging = 6;
constexpr std::uint32_t wearable = 7;
constexpr std::uint32_t keyboard = 0x10;
constexpr std::uint32_t pointer = 0x20;

struct AppearanceRow {
    std::uint16_t from;
    std::uint16_t to;
    DeviceClass means;
};

constexpr std::uint16_t category(std::uint16_t number) {
    return static_cast<std::uint16_t>(number << 6);
}
constexpr std::uint16_t lastOf(std::uint16_t number) {
    return static_cast<std::uint16_t>(category(number) | 0x3F);
}

// The first row that fits wins.
constexpr std::array<AppearanceRow, 8> appearances{{
    {category(1), lastOf(1), {phone, 0}},
    {category(2), lastOf(2), {computer, 0}},
    {category(3), lastOf(3), {wearable, 0}},
    {0x3C1, 0x3C1, {peripheral, keyboard}},
    {0x3C2, 0x3C2, {peripheral, pointer}},
    {category(15), lastOf(15), {peripheral, 0}},
    {category(33), lastOf(33), {audio, 0}},
    {category(37), lastOf(37), {audio, 0}},
}};

struct IconRow {
    std::string_view beginning;
    DeviceClass means;
};

constexpr std::array<IconRow, 9> icons{{
    {"phone", {phone, 0}},
    {"computer", {computer, 0}},
    {"audio-", {audio, 0}},
    {"input-keyboard", {peripheral, keyboard}},
    {"input-mouse", {peripheral, pointer}},
    {"input-tablet", {peripheral, 0}},
    {"input-gaming", {peripheral, 0}},
    {"printer", {imaging, 0}},
    {"camera", {imaging, 0}},
}};

} // namespace

DeviceClass deviceClass(const DeviceKind& kind) {
    if (kind.classOfDevice != 0) return {kind.classOfDevice >> 8 & 0x1F, kind.classOfDevice >> 2 & 0x3F};
    for (const auto& row : appearances) {
        if (kind.appearance >= row.from && kind.appearance <= row.to) return row.means;
    }
    for (const auto& row : icons) {
        if (kind.icon.starts_with(row.beginning)) return row.means;
    }
    return {};
}

} // namespace tarvo::desktop
