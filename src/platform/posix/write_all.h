#pragma once

#include <span>

struct iovec;

namespace tarvo {

/// Writes all pieces in order, with one call where the kernel takes them at once. False on an error; then
/// some of the bytes may have been written. The pieces are used up.
bool writeAll(int descriptor, std::span<iovec> pieces);

} // namespace tarvo
