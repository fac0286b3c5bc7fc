#pragma once

#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSLocale : NSObject <NSCopying>
@property(class, readonly, copy) NSLocale* currentLocale;
@property(readonly, copy) NSString* languageCode;
@end

NS_ASSUME_NONNULL_END
