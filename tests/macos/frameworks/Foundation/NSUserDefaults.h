#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSNotification.h>

NS_ASSUME_NONNULL_BEGIN

extern "C" {
extern NSNotificationName const NSUserDefaultsDidChangeNotification;
}

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
@end

NS_ASSUME_NONNULL_END
