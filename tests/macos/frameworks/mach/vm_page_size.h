#pragma once

#include <mach/mach_types.h>

#ifdef __cplusplus
extern "C" {
#endif

extern vm_size_t vm_page_size;
extern vm_size_t vm_kernel_page_size;

#ifdef __cplusplus
}
#endif
