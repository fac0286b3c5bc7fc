#pragma once

#include "platform/child_processes.h"
#include "platform/dispatcher.h"
#include "platform/https_client.h"

#include <string>

namespace tarvo {

/// HTTPS by a helper process for each request (apps/tarvo-fetch). A program that asks for a few hundred bytes
/// a day would otherwise keep a TLS library with its tables in memory for months; and what a stranger's
/// server sends is parsed in a process that ends right after. Any thread; the completion runs on a background
/// one.
class HTTPSHelperClient : public HTTPSClient {
public:
    static constexpr std::size_t maxReplySize = std::size_t{1} << 20;

    /// `helper` is an absolute path; empty: every request fails. Both references outlive the requests.
    HTTPSHelperClient(ChildProcesses& processes, Dispatcher& dispatcher, std::string helper);

    void fetch(const std::string& address, std::chrono::milliseconds timeout, Completion completion) override;

private:
    ChildProcesses& processes_;
    Dispatcher& dispatcher_;
    std::string helper_;
};

} // namespace tarvo
