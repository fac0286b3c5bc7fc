#pragma once

namespace tarvo {

/// Gives the memory back to the system that was freed and that the C library keeps for what may come. Worth
/// its millisecond after much was freed at once. Does nothing where the library cannot be asked to. Any
/// thread.
void returnFreedMemory();

/// Lets all threads take their memory from one heap. By itself the C library gives threads heaps of their
/// own, which stay when those threads have ended; here they live for seconds and ask for little. To be called
/// before there is a second thread.
void shareOneHeap();

} // namespace tarvo
