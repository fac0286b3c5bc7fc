#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSOperation.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject <NSCopying>
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, strong) id object;
@property(nullable, readonly, copy) NSDictionary* userInfo;
@end

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)aSelector
               name:(nullable NSNotificationName)aName
             object:(nullable id)anObject;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
- (void)postNotificationName:(NSNotificationName)aName object:(nullable id)anObject;
- (void)removeObserver:(id)observer;
@end

NS_ASSUME_NONNULL_END
