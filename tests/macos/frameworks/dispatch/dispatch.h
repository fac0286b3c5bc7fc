#pragma once

// Hand-written from the public documentation of Dispatch: queues and delayed blocks.

#include <cstdint>

#ifdef __OBJC__
#include <Foundation/NSObject.h>

#pragma clang assume_nonnull begin

@protocol OS_dispatch_queue <NSObject>
@end
typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
typedef void (^dispatch_block_t)(void);
typedef std::uint64_t dispatch_time_t;

#define DISPATCH_TIME_NOW (0ULL)
#define NSEC_PER_SEC 1000000000ULL
#define NSEC_PER_MSEC 1000000ULL

#define QOS_CLASS_UTILITY 0x11
#define QOS_CLASS_USER_INITIATED 0x19

extern "C" {
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_get_global_queue(std::intptr_t identifier, std::uintptr_t flags);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t delta);
}

#pragma clang assume_nonnull end
#endif
