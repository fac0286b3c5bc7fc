#pragma once

#include <mach/mach_types.h>

#ifdef __cplusplus
extern "C" {
#endif

extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_

kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name);
kern_return_t vm_deallocate(vm_map_t targetTask, vm_address_t address, vm_size_t size);

#ifdef __cplusplus
}
#endif
