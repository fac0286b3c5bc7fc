#pragma once

#include "platform/volumes.h"

namespace tarvo::macos_platform {

/// Volumes by the resource values of their URLs.
class MacVolumes : public Volumes {
public:
    std::optional<VolumeValues> root() override;
    std::optional<std::vector<VolumeValues>> mounted() override;
};

} // namespace tarvo::macos_platform
