#pragma once

namespace tarvo {

/// Gives the memory back to the system that was freed and that the C library keeps for what may come. Worth
/// its millisecond after much was freed at once. Does nothing where the library cannot be asked to. Any
/// thread.
void returnFreedMemory();

} // namespace tarvo
