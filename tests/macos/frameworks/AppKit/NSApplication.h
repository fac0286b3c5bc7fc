#pragma once

#import <AppKit/NSEvent.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

extern "C" NSNotificationName const NSApplicationWillTerminateNotification;

@interface NSApplication : NSObject
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
@end

NS_ASSUME_NONNULL_END
