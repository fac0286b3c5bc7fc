#pragma once

#include "platform/clock.h"
#include "platform/linux/volume_facts.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Measures file systems on other machines without waiting for one that does not answer: each is asked in a
/// thread of its own, all at once, and what has not answered within the limit is left out and left alone for
/// a minute. At most one thread waits for each path. Not thread-safe.
class NetworkMountProbe {
public:
    NetworkMountProbe(Clock& clock, MeasureFileSystem measure,
                      std::chrono::milliseconds limit = std::chrono::seconds{2});

    /// One entry a path, in the same order.
    std::vector<std::optional<FileSystemSize>> measure(const std::vector<std::string>& paths);

private:
    struct Attempt;

    std::shared_ptr<Attempt> begin(const std::string& path);

    Clock& clock_;
    MeasureFileSystem measure_;
    std::chrono::milliseconds limit_;
    std::map<std::string, std::shared_ptr<Attempt>> unanswered_;
};

} // namespace tarvo::linux_platform
