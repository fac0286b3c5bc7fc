#pragma once

#include "platform/linux/root.h"
#include "platform/linux/socket_owners.h"
#include "platform/linux/socket_record.h"
#include "platform/sockets.h"

#include <memory>
#include <mutex>
#include <string>

namespace tarvo::linux_platform {

/// The internet sockets that can be attributed to a process: an ordinary user's own. Left out are those of
/// other users and those that no process holds, waiting out their time or not yet accepted.
class LinuxSocketTable : public SocketTable {
public:
    LinuxSocketTable(const Root& root, std::unique_ptr<SocketSource> sockets);

    std::vector<SocketRow> rows() override;

private:
    std::string nameOf(std::int32_t pid) const;

    std::string processes_;
    std::mutex mutex_; ///< guards what follows: one listing at a time
    std::unique_ptr<SocketSource> sockets_;
    SocketOwners owners_;
};

} // namespace tarvo::linux_platform
