#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSError : NSObject <NSCopying>
@end

NS_ASSUME_NONNULL_END
