#pragma once

#include "platform/desktop/hot_key/hot_key_binding.h"
#include "platform/desktop/hot_key/key_repeat.h"

#include <QSocketNotifier>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tarvo::desktop {

/// A passive grab of the keys on the X server, for every state of the lock keys (X Window System Protocol,
/// GrabKey). It has a connection of its own, so that it sees its own events and no others and the grabs go
/// with it. Follows changes of the keyboard.
class X11HotKey : public HotKeyBinding {
public:
    /// On the server that DISPLAY names.
    X11HotKey(const KeyCombination& keys, HotKeyEvents events);

    HotKeyState state() const override { return state_; }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    /// What stands for the combination on the keyboard as it is now.
    struct Keys {
        std::vector<std::uint8_t> codes;
        std::uint16_t numLock = 0; ///< the modifier that Num Lock is on; 0 for none
        bool operator==(const Keys&) const = default;
    };

    std::optional<Keys> readKeys() const;
    HotKeyState grab(const std::optional<Keys>& keys);
    void ungrab();
    void readEvents();
    void handle(const xcb_generic_event_t& event);
    void handleKey(const xcb_key_press_event_t& key, bool isPress);
    void keyboardChanged();
    void setState(HotKeyState state);

    KeyCombination keys_;
    HotKeyEvents events_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
    xcb_window_t root_ = XCB_NONE;
    std::uint16_t modifiers_ = 0;
    std::optional<Keys> grabbed_; ///< absent while nothing is
    KeyRepeat repeat_;
    HotKeyState state_ = HotKeyState::unavailable;
};

} // namespace tarvo::desktop
