#pragma once

#include <optional>
#include <string_view>

namespace tarvo::desktop {

/// The preference "statusBarHost" and the environment variable TARVO_STATUS_BAR.
enum class StatusBarWish { automatic, tray, bar };

/// "auto", "tray" or "bar"; absent for any other text.
std::optional<StatusBarWish> statusBarWish(std::string_view text);

/// Whether the desktop shows a tray. unknown: it was asked and has not answered yet.
enum class TrayState { unknown, absent, present };

enum class StatusBarKind { none, tray, bar };

/// Where the items belong: in the tray where there is one, else on the bar; none while that is not known yet.
StatusBarKind chooseStatusBar(StatusBarWish wish, TrayState tray);

} // namespace tarvo::desktop
