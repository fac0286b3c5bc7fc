#include "platform/macos/apple_smc_client.h"

#include "platform/macos/io_look_up.h"

#include <mach/mach.h>

#include <type_traits>

namespace tarvo::macos_platform {

// The seam's numbers are the system's handles.
static_assert(std::is_same_v<SMCService, io_service_t> && std::is_same_v<SMCConnection, io_connect_t>);
static_assert(std::is_same_v<std::int32_t, kern_return_t> && KERN_SUCCESS == 0);

SMCService AppleSMCClient::matchingService(std::string_view className) {
    return firstService(className);
}

std::int32_t AppleSMCClient::open(SMCService service, std::uint32_t type, SMCConnection& connection) {
    return IOServiceOpen(service, mach_task_self(), type, &connection);
}

void AppleSMCClient::release(SMCService service) {
    IOObjectRelease(service);
}

std::int32_t AppleSMCClient::callStructMethod(SMCConnection connection, std::uint32_t selector,
                                              const void* input, std::size_t inputSize, void* output,
                                              std::size_t& outputSize) {
    return IOConnectCallStructMethod(connection, selector, input, inputSize, output, &outputSize);
}

void AppleSMCClient::close(SMCConnection connection) {
    IOServiceClose(connection);
}

} // namespace tarvo::macos_platform
