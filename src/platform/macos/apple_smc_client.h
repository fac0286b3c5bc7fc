#pragma once

#include "platform/smc_user_client.h"

namespace tarvo::macos_platform {

/// The user client of the system management controller (IOKit).
class AppleSMCClient : public SMCUserClient {
public:
    SMCService matchingService(std::string_view className) override;
    std::int32_t open(SMCService service, std::uint32_t type, SMCConnection& connection) override;
    void release(SMCService service) override;
    std::int32_t callStructMethod(SMCConnection connection, std::uint32_t selector, const void* input,
                                  std::size_t inputSize, void* output, std::size_t& outputSize) override;
    void close(SMCConnection connection) override;
};

} // namespace tarvo::macos_platform
