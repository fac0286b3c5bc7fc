#pragma once

#import <AppKit/NSImage.h>

#include <sys/types.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSRunningApplication : NSObject
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
@property(nullable, readonly, strong) NSImage* icon;
@end

NS_ASSUME_NONNULL_END
