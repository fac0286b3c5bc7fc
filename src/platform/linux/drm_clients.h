#pragma once

#include "platform/clock.h"
#include "platform/linux/drm_fdinfo.h"
#include "platform/linux/root.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// The users of graphics cards among the processes that this user may look into. Looking through every
/// descriptor of every process is dear, so that is done every ten seconds; in between the known descriptors
/// are read. For one thread.
class DRMClients {
public:
    DRMClients(const Root& root, Clock& clock) : root_(root), clock_(clock) {}

    std::vector<DRMClient> read();

private:
    void findDescriptors();

    Root root_;
    Clock& clock_;
    std::optional<SteadyTime> found_;
    std::vector<std::string> descriptors_; ///< paths of their fdinfo
};

} // namespace tarvo::linux_platform
