#pragma once

#include "platform/desktop/hot_key/key_combination.h"

#include <functional>
#include <memory>

namespace tarvo::desktop {

enum class HotKeyState {
    pending, ///< the desktop has not answered yet
    active,
    taken,      ///< another program holds the keys
    unavailable ///< this desktop has no means for it, or its user said no
};

struct HotKeyEvents {
    std::function<void()> pressed;
    std::function<void(HotKeyState)> stateChanged; ///< not called by the constructor of a binding
};

/// One combination of keys held by one of the desktop's means; given back when it is destroyed. Main thread
/// only.
class HotKeyBinding {
public:
    virtual ~HotKeyBinding() = default;
    virtual HotKeyState state() const = 0;
};

/// Null where the desktop has no means for hot keys.
using HotKeyBinder =
    std::function<std::unique_ptr<HotKeyBinding>(const KeyCombination& keys, HotKeyEvents events)>;

} // namespace tarvo::desktop
