#pragma once

#include "platform/hot_keys.h"

#include <map>
#include <vector>

namespace tarvo {

/// Hot keys that a test presses.
class RecordingHotKeys : public HotKeys {
public:
    struct Registered {
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;
        HotKeyID id;
        bool operator==(const Registered&) const = default;
    };

    HotKeyHandlerRef installPressedHandler(std::function<void(const HotKeyID&)> pressed) override {
        handlers[++lastRef] = std::move(pressed);
        return lastRef;
    }
    void removeHandler(HotKeyHandlerRef handler) override { handlers.erase(handler); }
    std::optional<HotKeyRef> registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                            HotKeyID id) override {
        if (whenRegistered) whenRegistered();
        if (!knowsTheKey) return std::nullopt;
        keys[++lastRef] = {keyCode, modifiers, id};
        return lastRef;
    }
    void unregisterHotKey(HotKeyRef hotKey) override { keys.erase(hotKey); }

    /// A press of the latest hot key, as far as anybody listens.
    void press() {
        if (keys.empty() || handlers.empty()) return;
        const auto handler = handlers.rbegin()->second;
        handler(keys.rbegin()->second.id);
    }

    std::function<void()> whenRegistered;
    bool knowsTheKey = true;
    std::map<HotKeyHandlerRef, std::function<void(const HotKeyID&)>> handlers;
    std::map<HotKeyRef, Registered> keys;

private:
    std::uint32_t lastRef = 0;
};

} // namespace tarvo
