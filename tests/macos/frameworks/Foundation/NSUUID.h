#pragma once

#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSUUID : NSObject <NSCopying>
@property(readonly, copy) NSString* UUIDString;
@end

NS_ASSUME_NONNULL_END
