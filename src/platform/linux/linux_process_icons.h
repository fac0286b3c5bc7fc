#pragma once

#include "platform/clock.h"
#include "platform/dispatcher.h"
#include "platform/linux/application_index.h"
#include "platform/linux/root.h"
#include "platform/process_icons.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Icons by the program that a process runs and by the application unit that it belongs to. The desktop files
/// are read in the background, first when an icon is asked for, and again every few minutes while icons are
/// asked for.
class LinuxProcessIcons : public ProcessIcons {
public:
    static constexpr std::chrono::minutes indexLifetime{5};

    /// Clock and dispatcher outlive this.
    LinuxProcessIcons(Root root, std::vector<std::string> folders, Clock& clock, Dispatcher& dispatcher);

    std::optional<ProcessIcon> icon(std::int32_t pid) override;

private:
    struct State {
        std::optional<ApplicationIndex> index;
        bool isReading = false;
    };
    void readWhenDue();

    Root root_;
    std::vector<std::string> folders_;
    Clock& clock_;
    Dispatcher& dispatcher_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
    std::optional<SteadyTime> readAt_;
};

} // namespace tarvo::linux_platform
