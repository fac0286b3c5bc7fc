#pragma once

#include <cstddef>

namespace tarvo {

/// How often this thread has asked for memory with new (under a sanitizer of Clang also with malloc);
/// link support/allocation_counter.cpp.
std::size_t allocationCount();

} // namespace tarvo
