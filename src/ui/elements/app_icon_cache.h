#pragma once

#include <QIcon>

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>

namespace tarvo::ui {

/// The icon of the application that runs under a process id; absent where there is no such application or it
/// has no icon. Asked on the main thread.
using ApplicationIconSource = std::function<std::optional<QIcon>(std::int32_t pid)>;

/// Icons by process id. It only grows; an absent icon is not kept, so a later call asks again. Main thread
/// only.
class AppIconCache {
public:
    explicit AppIconCache(ApplicationIconSource source) : source_(std::move(source)) {}

    std::optional<QIcon> icon(std::int32_t forPID);

private:
    ApplicationIconSource source_;
    std::unordered_map<std::int32_t, QIcon> icons_;
};

} // namespace tarvo::ui
