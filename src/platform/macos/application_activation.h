#pragma once

#include "platform/application.h"

namespace tarvo::macos_platform {

/// Whether the running application stands in the Dock and has a menu. Needs the application object, as the
/// rest does; main thread only.
void setActivationPolicy(ActivationPolicy policy);

/// Brings the application to the front, whichever one stands there.
void activateIgnoringOtherApps();

} // namespace tarvo::macos_platform
