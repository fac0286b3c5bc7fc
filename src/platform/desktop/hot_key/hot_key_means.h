#pragma once

#include "platform/desktop/hot_key/hot_key_binding.h"
#include "platform/desktop/hot_key/portal_hot_key.h"
#include "platform/posix/environment.h"

#include <QDBusConnection>
#include <QString>

namespace tarvo::desktop {

enum class HotKeyMeans { none, x11, portal };

/// Grabs in an X11 session. In a Wayland session the portal, under XWayland too: a grab would only be seen
/// while an X11 window has the keyboard. `platform` is the name of Qt's platform plug-in.
HotKeyMeans hotKeyMeans(const QString& platform, const Environment& environment);

/// Binds by those means.
HotKeyBinder hotKeyBinder(HotKeyMeans means, QDBusConnection bus, PortalHotKey::Texts texts);

} // namespace tarvo::desktop
