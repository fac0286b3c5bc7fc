#include "ui/elements/app_icon_cache.h"

namespace tarvo::ui {

std::optional<QIcon> AppIconCache::icon(std::int32_t forPID) {
    if (const auto hit = icons_.find(forPID); hit != icons_.end()) return hit->second;
    auto found = source_ ? source_(forPID) : std::nullopt;
    if (!found || found->isNull()) return std::nullopt;
    icons_.emplace(forPID, *found);
    return found;
}

} // namespace tarvo::ui
