#pragma once

#include "platform/linux/root.h"
#include "platform/linux/socket_owners.h"
#include "platform/linux/socket_record.h"
#include "platform/linux/traffic_totals.h"
#include "platform/sockets.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// TCP bytes by process since the program first saw its sockets. UDP sockets have no counters; other users'
/// processes and sockets that lived and died between two samples are missing. A socket that several processes
/// share counts for the one with the lowest number, as a rule the one that opened it.
class LinuxProcessTraffic : public ProcessTraffic {
public:
    LinuxProcessTraffic(const Root& root, std::unique_ptr<SocketSource> sockets);

    std::vector<TrafficRow> rows() override;

private:
    std::vector<OwnedTraffic> sample();
    std::optional<std::string> stat(std::int32_t pid) const;
    std::optional<ProcessIdentity> identify(std::int32_t pid) const;

    std::string processes_;
    std::mutex mutex_; ///< guards what follows: one sample at a time
    std::unique_ptr<SocketSource> sockets_;
    SocketOwners owners_;
    TrafficTotals totals_;
};

} // namespace tarvo::linux_platform
