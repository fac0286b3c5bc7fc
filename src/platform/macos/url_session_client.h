#pragma once

#include "platform/https_client.h"

namespace tarvo::macos_platform {

/// HTTPS by a data task on the shared session. The system itself refuses plain HTTP to an application whose
/// Info.plist does not ask for it; a reply that came that way nonetheless is a failure.
class URLSessionClient : public HTTPSClient {
public:
    void fetch(const std::string& address, std::chrono::milliseconds timeout, Completion completion) override;
};

} // namespace tarvo::macos_platform
