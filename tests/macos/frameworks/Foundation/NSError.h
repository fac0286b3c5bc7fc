#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSErrorDomain;
typedef NSString* NSErrorUserInfoKey;

@interface NSError : NSObject <NSCopying>
@property(readonly, copy) NSErrorDomain domain;
@property(readonly) NSInteger code;
@property(readonly, copy) NSString* localizedDescription;
@end

NS_ASSUME_NONNULL_END
