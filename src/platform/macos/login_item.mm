#include "platform/macos/login_item.h"

#import <ServiceManagement/ServiceManagement.h>

namespace tarvo::macos_platform {

bool LoginItem::isOn() const {
    return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

void LoginItem::setOn(bool on) {
    if (on) {
        [SMAppService.mainAppService registerAndReturnError:nil];
    } else {
        [SMAppService.mainAppService unregisterAndReturnError:nil];
    }
}

} // namespace tarvo::macos_platform
