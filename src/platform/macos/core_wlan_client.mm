#include "platform/macos/core_wlan_client.h"

#include "platform/macos/foundation_text.h"

#import <CoreLocation/CoreLocation.h>
#import <CoreWLAN/CoreWLAN.h>

/// The system asks nobody without a delegate. The answer is read when the name is next asked for.
@interface TarvoLocationDelegate : NSObject <CLLocationManagerDelegate>
@end

@implementation TarvoLocationDelegate
- (void)locationManagerDidChangeAuthorization:(CLLocationManager*)manager {
}
@end

namespace tarvo::macos_platform {

static_assert(WiFiClient::authorizedAlways == kCLAuthorizationStatusAuthorizedAlways);

struct CoreWLANClient::State {
    CLLocationManager* locationManager = [[CLLocationManager alloc] init];
    TarvoLocationDelegate* delegate = [[TarvoLocationDelegate alloc] init]; // the manager holds it weakly
};

CoreWLANClient::CoreWLANClient() : state_(std::make_unique<State>()) {
    state_->locationManager.delegate = state_->delegate;
}

CoreWLANClient::~CoreWLANClient() = default;

int CoreWLANClient::authorizationStatus() {
    return state_->locationManager.authorizationStatus;
}

void CoreWLANClient::requestWhenInUseAuthorization() {
    [state_->locationManager requestWhenInUseAuthorization];
}

std::optional<std::string> CoreWLANClient::ssid() {
    @autoreleasepool {
        return utf8Text([CWWiFiClient.sharedWiFiClient interface].ssid);
    }
}

} // namespace tarvo::macos_platform
