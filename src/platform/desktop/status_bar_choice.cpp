#include "platform/desktop/status_bar_choice.h"

namespace tarvo::desktop {

std::optional<StatusBarWish> statusBarWish(std::string_view text) {
    if (text == "auto") return StatusBarWish::automatic;
    if (text == "tray") return StatusBarWish::tray;
    if (text == "bar") return StatusBarWish::bar;
    return std::nullopt;
}

StatusBarKind chooseStatusBar(StatusBarWish wish, TrayState tray) {
    if (wish == StatusBarWish::tray) return StatusBarKind::tray;
    if (wish == StatusBarWish::bar) return StatusBarKind::bar;
    switch (tray) {
    case TrayState::present:
        return StatusBarKind::tray;
    case TrayState::absent:
        return StatusBarKind::bar;
    case TrayState::unknown:
        break;
    }
    return StatusBarKind::none;
}

} // namespace tarvo::desktop
