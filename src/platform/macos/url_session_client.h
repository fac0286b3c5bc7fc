#pragma once

#include "platform/https_client.h"

namespace tarvo::macos_platform {

/// HTTPS by a data task on the shared session. That a redirect leads to plain HTTP nowhere is the work of the
/// system, which refuses such loads to every application that does not ask for them in its Info.plist.
class URLSessionClient : public HTTPSClient {
public:
    void fetch(const std::string& address, std::chrono::milliseconds timeout, Completion completion) override;
};

} // namespace tarvo::macos_platform
