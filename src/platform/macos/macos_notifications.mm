#include "platform/macos/macos_notifications.h"

#include "platform/macos/foundation_text.h"

#import <UserNotifications/UserNotifications.h>

namespace tarvo::macos_platform {
namespace {

/// Asking for the centre without a bundle ends the process.
UNUserNotificationCenter* _Nullable center() {
    if (NSBundle.mainBundle.bundleIdentifier == nil) return nil;
    return [UNUserNotificationCenter currentNotificationCenter];
}

} // namespace

void MacNotifications::requestAuthorization() {
    [center() requestAuthorizationWithOptions:UNAuthorizationOptionAlert | UNAuthorizationOptionSound
                            completionHandler:^(BOOL, NSError*){
                                // Refused or not, requests are posted: the system drops those of a user who
                                // refused.
                            }];
}

void MacNotifications::add(const UserNotification& notification) {
    @autoreleasepool {
        UNMutableNotificationContent* const content = [[UNMutableNotificationContent alloc] init];
        content.title = systemText(notification.title);
        content.body = systemText(notification.body);
        content.sound = UNNotificationSound.defaultSound;
        UNNotificationRequest* const request =
            [UNNotificationRequest requestWithIdentifier:systemText(notification.identifier)
                                                 content:content
                                                 trigger:nil];
        [center() addNotificationRequest:request withCompletionHandler:nil];
    }
}

} // namespace tarvo::macos_platform
