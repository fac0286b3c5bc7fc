#pragma once

#include <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSDate : NSObject <NSCopying>
+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)secs;
@property(readonly) NSTimeInterval timeIntervalSince1970;
@end

NS_ASSUME_NONNULL_END
