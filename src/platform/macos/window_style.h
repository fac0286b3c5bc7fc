#pragma once

#include <cstdint>

namespace tarvo::macos_platform {

/// Lets the content of a window reach up to its top edge, below a title bar that is seen through, and lets it
/// fill the screen; it is not opened again by itself at the next launch. `view` is the number under which Qt
/// knows the window's view. The height of the title bar, which now covers the content; 0 without a window.
/// Main thread only.
double extendContentBelowTitleBar(std::uintptr_t view);

} // namespace tarvo::macos_platform
