#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace tarvo {

/// What a hot key is registered with and its presses tell.
struct HotKeyID {
    std::uint32_t signature = 0;
    std::uint32_t number = 0;
    bool operator==(const HotKeyID&) const = default;
};

using HotKeyRef = std::uint32_t;
using HotKeyHandlerRef = std::uint32_t;

/// Hot keys that work whichever application is in front. Key codes and modifier masks are those of the Carbon
/// event manager (Events.h); a platform without it translates them. Nothing tells whether a press will ever
/// come: another program may hold the keys. Main thread only.
class HotKeys {
public:
    virtual ~HotKeys() = default;
    /// What runs at each press of any registered hot key. Of several handlers only the one installed last
    /// runs.
    virtual HotKeyHandlerRef installPressedHandler(std::function<void(const HotKeyID&)> pressed) = 0;
    virtual void removeHandler(HotKeyHandlerRef handler) = 0;
    /// Absent where there is no such key.
    virtual std::optional<HotKeyRef> registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                    HotKeyID id) = 0;
    virtual void unregisterHotKey(HotKeyRef hotKey) = 0;
};

} // namespace tarvo
