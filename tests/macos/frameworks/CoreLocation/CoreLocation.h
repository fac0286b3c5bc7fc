#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(int, CLAuthorizationStatus) {
    kCLAuthorizationStatusNotDetermined = 0,
    kCLAuthorizationStatusRestricted,
    kCLAuthorizationStatusDenied,
    kCLAuthorizationStatusAuthorizedAlways,
};

@class CLLocationManager;

@protocol CLLocationManagerDelegate <NSObject>
- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager;
@end

@interface CLLocationManager : NSObject
@property(nullable, nonatomic, weak) id<CLLocationManagerDelegate> delegate;
@property(nonatomic, readonly) CLAuthorizationStatus authorizationStatus;
- (void)requestWhenInUseAuthorization;
@end

NS_ASSUME_NONNULL_END
