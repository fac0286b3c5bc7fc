#include "platform/desktop/hot_key/desktop_hot_keys.h"

#include "platform/desktop/logging.h"

#include <utility>

namespace tarvo::desktop {
namespace {

const char* name(HotKeyState state) {
    switch (state) {
    case HotKeyState::pending:
        return "asked for";
    case HotKeyState::active:
        return "active";
    case HotKeyState::taken:
        return "taken by another program";
    case HotKeyState::unavailable:
        return "unavailable";
    }
    return "";
}

} // namespace

HotKeyHandlerRef DesktopHotKeys::installPressedHandler(std::function<void(const HotKeyID&)> pressed) {
    handlers_[++lastRef_] = std::move(pressed);
    return lastRef_;
}

std::optional<HotKeyRef> DesktopHotKeys::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                        HotKeyID id) {
    const auto keys = keyCombination(keyCode, modifiers);
    if (!keys || !bind_) return std::nullopt;
    auto binding = bind_(*keys, {.pressed = [this, id] { pressed(id); },
                                 .stateChanged = [this](HotKeyState state) { stateChanged(state); }});
    if (!binding) return std::nullopt;
    const auto state = binding->state();
    bindings_[++lastRef_] = std::move(binding);
    stateChanged(state);
    return lastRef_;
}

HotKeyState DesktopHotKeys::state() const {
    return bindings_.empty() ? HotKeyState::unavailable : bindings_.rbegin()->second->state();
}

void DesktopHotKeys::pressed(const HotKeyID& id) {
    qCDebug(hotKeyLog, "pressed");
    if (handlers_.empty()) return;
    const auto handler = handlers_.rbegin()->second; // kept: it may remove itself
    handler(id);
}

void DesktopHotKeys::stateChanged(HotKeyState state) {
    qCDebug(hotKeyLog, "%s", name(state));
    if (onStateChanged) onStateChanged();
}

} // namespace tarvo::desktop
