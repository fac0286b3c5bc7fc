#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface CWInterface : NSObject
- (nullable NSString*)ssid;
@end

@interface CWWiFiClient : NSObject
+ (CWWiFiClient*)sharedWiFiClient;
- (nullable CWInterface*)interface;
@end

NS_ASSUME_NONNULL_END
