#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
    UNAuthorizationOptionBadge = 1 << 0,
    UNAuthorizationOptionSound = 1 << 1,
    UNAuthorizationOptionAlert = 1 << 2,
};

@interface UNNotificationSound : NSObject <NSCopying>
@property(class, nonatomic, copy, readonly) UNNotificationSound* defaultSound;
@end

@interface UNNotificationContent : NSObject <NSCopying>
@property(nonatomic, readonly, copy) NSString* title;
@property(nonatomic, readonly, copy) NSString* body;
@property(nonatomic, nullable, readonly, copy) UNNotificationSound* sound;
@end

@interface UNMutableNotificationContent : UNNotificationContent
@property(nonatomic, copy) NSString* title;
@property(nonatomic, copy) NSString* body;
@property(nonatomic, nullable, copy) UNNotificationSound* sound;
@end

@interface UNNotificationTrigger : NSObject <NSCopying>
@end

@interface UNNotificationRequest : NSObject <NSCopying>
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
@end

@interface UNUserNotificationCenter : NSObject
+ (UNUserNotificationCenter*)currentNotificationCenter;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;
@end

NS_ASSUME_NONNULL_END
