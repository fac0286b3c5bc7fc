#pragma once

#include "platform/child_processes.h"
#include "platform/dispatcher.h"
#include "platform/sockets.h"
#include "processes/network_connection.h"

#include <functional>
#include <vector>

namespace tarvo::NetworkConnectionsFetcher {

using Completion = std::function<void(std::vector<NetworkConnection>)>;

/// The rows as records, in their order, each with a fresh identity.
std::vector<NetworkConnection> connections(std::vector<SocketRow> rows);

/// Lists the open internet sockets on a background thread and hands them to the completion, which is called
/// exactly once, on the main thread, with an empty list when they cannot be listed. Returns at once. What is
/// handed in outlives the work. From the open-files tool, or from a platform's records.
void fetch(ChildProcesses& children, Dispatcher& dispatcher, Completion completion);
void fetch(SocketTable& table, Dispatcher& dispatcher, Completion completion);

} // namespace tarvo::NetworkConnectionsFetcher
