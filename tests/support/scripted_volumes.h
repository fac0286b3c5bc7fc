#pragma once

#include "platform/volumes.h"

namespace tarvo {

/// Volumes as the test wrote them down.
class ScriptedVolumes : public Volumes {
public:
    std::optional<VolumeValues> root() override { return rootAnswer; }
    std::optional<std::vector<VolumeValues>> mounted() override { return mountedAnswer; }

    std::optional<VolumeValues> rootAnswer;
    std::optional<std::vector<VolumeValues>> mountedAnswer;
};

} // namespace tarvo
