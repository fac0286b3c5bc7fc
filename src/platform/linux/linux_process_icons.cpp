#include "platform/linux/linux_process_icons.h"

#include "platform/linux/application_id.h"
#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <fmt/format.h>

#include <utility>

namespace tarvo::linux_platform {
namespace {

// A replaced program's link reads "/usr/bin/name (deleted)".
std::string programName(const std::string& link) {
    constexpr std::string_view replaced = " (deleted)";
    std::string_view path = link;
    if (path.ends_with(replaced)) path.remove_suffix(replaced.size());
    return std::string(lastComponent(path));
}

} // namespace

LinuxProcessIcons::LinuxProcessIcons(Root root, std::vector<std::string> folders, Clock& clock,
                                     Dispatcher& dispatcher)
    : root_(std::move(root)), folders_(std::move(folders)), clock_(clock), dispatcher_(dispatcher) {}

std::optional<ProcessIcon> LinuxProcessIcons::icon(std::int32_t pid) {
    readWhenDue();
    if (!state_->index) return std::nullopt;
    const std::string folder = root_.path(fmt::format("/proc/{}", pid));
    // The program first: a unit also holds what the application starts.
    if (const auto link = linkText(folder + "/exe")) {
        if (const auto* icon = state_->index->iconOfProgram(programName(*link))) return NamedIcon{*icon};
    }
    const auto cgroup = readFile(folder + "/cgroup");
    if (!cgroup) return std::nullopt;
    for (const std::string& id : applicationIDs(*cgroup)) {
        if (const auto* icon = state_->index->iconOfApplication(id)) return NamedIcon{*icon};
    }
    return std::nullopt;
}

void LinuxProcessIcons::readWhenDue() {
    const SteadyTime now = clock_.steadyNow();
    if (state_->isReading || (readAt_ && now - *readAt_ < indexLifetime)) return;
    readAt_ = now;
    state_->isReading = true;
    dispatcher_.global(QualityOfService::utility,
                       [&dispatcher = dispatcher_, folders = folders_, weak = std::weak_ptr(state_)] {
                           auto index = std::make_shared<ApplicationIndex>(ApplicationIndex::read(folders));
                           dispatcher.async([index, weak] {
                               const auto state = weak.lock();
                               if (!state) return;
                               state->index = std::move(*index);
                               state->isReading = false;
                           });
                       });
}

} // namespace tarvo::linux_platform
