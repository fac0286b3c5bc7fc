#pragma once

#include <stddef.h>
#include <sys/types.h>

struct xsw_usage {
    u_int64_t xsu_total;
    u_int64_t xsu_avail;
    u_int64_t xsu_used;
    u_int32_t xsu_pagesize;
    int xsu_encrypted;
};

#ifdef __cplusplus
extern "C" {
#endif

int sysctlbyname(const char* name, void* oldValue, size_t* oldLength, void* newValue, size_t newLength);

#ifdef __cplusplus
}
#endif
