#include "platform/desktop/hot_key/hot_key_means.h"

#include "platform/desktop/hot_key/x11_hot_key.h"

#include <utility>

namespace tarvo::desktop {

HotKeyMeans hotKeyMeans(const QString& platform, const Environment& environment) {
    if (environment("WAYLAND_DISPLAY").value_or("").empty()) {
        return platform == QLatin1String("xcb") ? HotKeyMeans::x11 : HotKeyMeans::none;
    }
    return platform == QLatin1String("offscreen") ? HotKeyMeans::none : HotKeyMeans::portal;
}

HotKeyBinder hotKeyBinder(HotKeyMeans means, QDBusConnection bus, PortalHotKey::Texts texts) {
    return [means, bus = std::move(bus), texts = std::move(texts)](
               const KeyCombination& keys, HotKeyEvents events) -> std::unique_ptr<HotKeyBinding> {
        if (means == HotKeyMeans::x11) return std::make_unique<X11HotKey>(keys, std::move(events));
        if (means == HotKeyMeans::portal && bus.isConnected())
            return std::make_unique<PortalHotKey>(keys, std::move(events), bus, texts);
        return nullptr;
    };
}

} // namespace tarvo::desktop
