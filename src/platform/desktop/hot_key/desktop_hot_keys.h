#pragma once

#include "platform/desktop/hot_key/hot_key_binding.h"
#include "platform/hot_keys.h"

#include <map>
#include <memory>

namespace tarvo::desktop {

/// Hot keys by whatever means the desktop has. Main thread only.
class DesktopHotKeys : public HotKeys {
public:
    explicit DesktopHotKeys(HotKeyBinder bind) : bind_(std::move(bind)) {}

    HotKeyHandlerRef installPressedHandler(std::function<void(const HotKeyID&)> pressed) override;
    void removeHandler(HotKeyHandlerRef handler) override { handlers_.erase(handler); }
    std::optional<HotKeyRef> registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                            HotKeyID id) override;
    void unregisterHotKey(HotKeyRef hotKey) override { bindings_.erase(hotKey); }

    /// That of the hot key registered last; unavailable without any.
    HotKeyState state() const;
    /// Runs after a change of it.
    std::function<void()> onStateChanged;

private:
    void pressed(const HotKeyID& id);
    void stateChanged(HotKeyState state);

    HotKeyBinder bind_;
    std::uint32_t lastRef_ = 0;
    std::map<HotKeyHandlerRef, std::function<void(const HotKeyID&)>> handlers_;
    std::map<HotKeyRef, std::unique_ptr<HotKeyBinding>> bindings_;
};

} // namespace tarvo::desktop
