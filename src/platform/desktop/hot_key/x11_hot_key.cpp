#include "platform/desktop/hot_key/x11_hot_key.h"

#include "platform/desktop/hot_key/lock_masks.h"
#include "platform/desktop/logging.h"

#include <cstdlib>
#include <utility>

namespace tarvo::desktop {
namespace {

constexpr xcb_keysym_t numLockSymbol = 0xff7f; // XK_Num_Lock
constexpr std::uint16_t everyModifier = 0xff;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;
using KeySymbols = std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)>;

std::uint16_t modifierMask(const KeyCombination& keys) {
    unsigned mask = 0;
    if (keys.logo) mask |= XCB_MOD_MASK_4;
    if (keys.shift) mask |= XCB_MOD_MASK_SHIFT;
    if (keys.alt) mask |= XCB_MOD_MASK_1;
    if (keys.control) mask |= XCB_MOD_MASK_CONTROL;
    return static_cast<std::uint16_t>(mask);
}

/// All key codes that have the symbol.
std::vector<std::uint8_t> codesOf(xcb_key_symbols_t* symbols, xcb_keysym_t symbol) {
    const Owned<xcb_keycode_t> found(xcb_key_symbols_get_keycode(symbols, symbol));
    std::vector<std::uint8_t> codes;
    for (const xcb_keycode_t* code = found.get(); code && *code != XCB_NO_SYMBOL; ++code)
        codes.push_back(*code);
    return codes;
}

std::uint16_t numLockMask(xcb_connection_t* connection, xcb_key_symbols_t* symbols) {
    const Owned<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (!reply) return 0;
    const auto length = static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(reply.get()));
    return modifierOfKeys({xcb_get_modifier_mapping_keycodes(reply.get()), length},
                          reply->keycodes_per_modifier, codesOf(symbols, numLockSymbol));
}

} // namespace

X11HotKey::X11HotKey(const KeyCombination& keys, HotKeyEvents events)
    : keys_(keys), events_(std::move(events)), modifiers_(modifierMask(keys)) {
    int screen = 0;
    connection_.reset(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(connection_.get()) != 0) return;
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screen > 0 && roots.rem > 1; --screen)
        xcb_screen_next(&roots);
    root_ = roots.data->root;
    state_ = grab(readKeys());
    notifier_ =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { readEvents(); });
    // What came with the answers above waits in the connection's queue, where no socket tells of it.
    QMetaObject::invokeMethod(
        notifier_.get(), [this] { readEvents(); }, Qt::QueuedConnection);
}

std::optional<X11HotKey::Keys> X11HotKey::readKeys() const {
    const KeySymbols symbols(xcb_key_symbols_alloc(connection_.get()), &xcb_key_symbols_free);
    if (!symbols) return std::nullopt;
    // Latin letters are their own symbols.
    Keys keys{codesOf(symbols.get(), keys_.letter), numLockMask(connection_.get(), symbols.get())};
    if (keys.codes.empty()) keys.codes.push_back(keys_.usualKeyCode);
    return keys;
}

HotKeyState X11HotKey::grab(const std::optional<Keys>& keys) {
    if (!keys) return HotKeyState::unavailable;
    qCDebug(hotKeyLog, "grabs the keys");
    std::vector<xcb_void_cookie_t> requests;
    for (const std::uint8_t code : keys->codes) {
        for (const std::uint16_t locks : lockMasks(keys->numLock)) {
            const auto mask = static_cast<std::uint16_t>(modifiers_ | locks);
            requests.push_back(xcb_grab_key_checked(connection_.get(), 1, root_, mask, code,
                                                    XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        }
    }
    HotKeyState state = HotKeyState::active;
    for (const auto request : requests) {
        const Owned<xcb_generic_error_t> error(xcb_request_check(connection_.get(), request));
        if (error) state = error->error_code == XCB_ACCESS ? HotKeyState::taken : HotKeyState::unavailable;
    }
    grabbed_ = keys;
    if (state != HotKeyState::active) ungrab();
    return state;
}

void X11HotKey::ungrab() {
    grabbed_.reset();
    xcb_ungrab_key(connection_.get(), XCB_GRAB_ANY, root_, XCB_MOD_MASK_ANY);
    xcb_flush(connection_.get());
}

void X11HotKey::readEvents() {
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())})
        handle(*event);
    if (xcb_connection_has_error(connection_.get()) == 0) return;
    notifier_->setEnabled(false);
    setState(HotKeyState::unavailable);
}

void X11HotKey::handle(const xcb_generic_event_t& event) {
    switch (event.response_type) { // what somebody made up has a bit more
    case XCB_MAPPING_NOTIFY:
        keyboardChanged();
        break;
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        handleKey(reinterpret_cast<const xcb_key_press_event_t&>(event),
                  event.response_type == XCB_KEY_PRESS);
        break;
    default:
        break;
    }
}

// Most changes of a keyboard leave these keys where they are. Giving them back only to take them again would
// lose a press in between.
void X11HotKey::keyboardChanged() {
    const auto keys = readKeys();
    if (keys && keys == grabbed_) return;
    ungrab();
    setState(grab(keys));
}

void X11HotKey::handleKey(const xcb_key_press_event_t& key, bool isPress) {
    if (!isPress) {
        repeat_.released(key.detail, key.time);
        return;
    }
    const unsigned locks = XCB_MOD_MASK_LOCK | (grabbed_ ? grabbed_->numLock : 0U);
    const bool isOurs = (key.state & everyModifier & ~locks) == modifiers_;
    if (isOurs && repeat_.isNewPress(key.detail, key.time)) events_.pressed();
}

void X11HotKey::setState(HotKeyState state) {
    if (std::exchange(state_, state) != state) events_.stateChanged(state);
}

} // namespace tarvo::desktop
