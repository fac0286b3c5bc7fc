#pragma once

namespace tarvo {

/// What a platform says of itself, where a sentence about one system would be untrue on another.
enum class SystemFamily { macOS, other };

} // namespace tarvo
