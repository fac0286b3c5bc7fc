#pragma once

#include <mach/processor_info.h>

typedef integer_t host_flavor_t;
typedef integer_t* host_info64_t;

#ifdef __cplusplus
extern "C" {
#endif

/// Adds a reference to the right that it answers.
mach_port_t mach_host_self(void);

kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* infoCount);

#define HOST_VM_INFO 2
#define HOST_CPU_LOAD_INFO 3
#define HOST_VM_INFO64 4

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t* count);

#ifdef __cplusplus
}
#endif
