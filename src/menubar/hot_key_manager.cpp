#include "menubar/hot_key_manager.h"

#include <utility>

namespace tarvo {

HotKeyManager::~HotKeyManager() {
    if (hotKeyRef_) hotKeys_.unregisterHotKey(*hotKeyRef_);
    if (eventHandlerRef_) hotKeys_.removeHandler(*eventHandlerRef_);
}

void HotKeyManager::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                   std::function<void()> handler) {
    handler_ = std::make_shared<Handler>(std::move(handler));
    eventHandlerRef_ = hotKeys_.installPressedHandler([held = std::weak_ptr(handler_)](const HotKeyID&) {
        const auto kept = held.lock();
        if (kept && *kept) (*kept)();
    });
    hotKeyRef_ = hotKeys_.registerHotKey(keyCode, modifiers, identifier);
}

} // namespace tarvo
