#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvo {

/// The system's own picture of a symbol ("cpu.fill"), on a platform that has such: in black on a transparent
/// square of `side` pixels, as large as it fits and centred. Rows from the top, four bytes a pixel: red,
/// green, blue and alpha, the colours multiplied with alpha. Absent for a name that the system does not have.
/// Main thread only.
std::optional<std::vector<std::uint8_t>> symbolPicture(std::string_view name, int side);

} // namespace tarvo
