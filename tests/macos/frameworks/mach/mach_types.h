#pragma once

#include <stdint.h>

typedef int integer_t;
typedef unsigned int natural_t;
typedef int boolean_t;
typedef int kern_return_t;
typedef natural_t mach_port_name_t;
typedef mach_port_name_t mach_port_t;
typedef natural_t mach_msg_type_number_t;
typedef mach_port_t host_t;
typedef mach_port_t task_port_t;
typedef mach_port_t ipc_space_t;
typedef mach_port_t vm_map_t;
typedef uintptr_t vm_offset_t;
typedef vm_offset_t vm_address_t;
typedef uintptr_t vm_size_t;

#define KERN_SUCCESS 0
#define KERN_INVALID_ADDRESS 1
#define KERN_INVALID_ARGUMENT 4
#define KERN_FAILURE 5

#define MACH_PORT_NULL 0
