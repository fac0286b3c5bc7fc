#pragma once

namespace tarvo {

/// The application's reverse-DNS identifier: names of desktop files, D-Bus services and queues start with it.
inline constexpr const char* applicationIdentifier = "io.github.tarvo.Tarvo";

} // namespace tarvo
