#pragma once

#include "menubar/four_char_code.h"
#include "platform/hot_keys.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

/// One system-wide keyboard shortcut and what a press runs. Main thread only.
class HotKeyManager {
public:
    static constexpr HotKeyID identifier{fourCharCode("SMhk"), 1};

    /// The hot keys outlive the manager.
    explicit HotKeyManager(HotKeys& hotKeys) : hotKeys_(hotKeys) {}
    ~HotKeyManager();
    HotKeyManager(const HotKeyManager&) = delete;
    HotKeyManager& operator=(const HotKeyManager&) = delete;

    /// Meant to be called once. Called again it adds a hot key, and every one of them runs the newest
    /// handler.
    void registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, std::function<void()> handler);

private:
    using Handler = std::function<void()>;

    HotKeys& hotKeys_;
    std::optional<HotKeyRef> hotKeyRef_;
    std::optional<HotKeyHandlerRef> eventHandlerRef_;
    std::shared_ptr<Handler> handler_; ///< held weakly by what was installed: a press may still be on its way
};

} // namespace tarvo
