#pragma once

#include "localization/localization_manager.h"
#include "platform/desktop/hot_key/hot_key_binding.h"

namespace tarvo {

/// What the settings page says about the hot key.
LKey hotKeyText(desktop::HotKeyState state);

} // namespace tarvo
