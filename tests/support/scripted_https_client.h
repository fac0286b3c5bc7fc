#pragma once

#include "platform/https_client.h"

#include <utility>
#include <vector>

namespace tarvo {

/// Keeps the requests; the test completes them by hand.
class ScriptedHTTPSClient : public HTTPSClient {
public:
    struct Request {
        std::string address;
        std::chrono::milliseconds timeout;
        Completion completion;
    };

    void fetch(const std::string& address, std::chrono::milliseconds timeout,
               Completion completion) override {
        requests.push_back({address, timeout, std::move(completion)});
    }

    std::vector<Request> requests;
};

} // namespace tarvo
