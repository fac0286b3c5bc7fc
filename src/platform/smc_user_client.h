#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarvo {

using SMCService = std::uint32_t;    ///< 0: no such service
using SMCConnection = std::uint32_t; ///< 0: not open

/// The user client through which programs talk to the system management controller; records as smc_record.h
/// lays them out. Requests may come from several threads at once, the rest from one thread while no request
/// runs.
class SMCUserClient {
public:
    virtual ~SMCUserClient() = default;
    /// The first service of the class, 0 when there is none.
    virtual SMCService matchingService(std::string_view className) = 0;
    /// Opens a user client of the service into `connection`. 0 on success.
    virtual std::int32_t open(SMCService service, std::uint32_t type, SMCConnection& connection) = 0;
    virtual void release(SMCService service) = 0;
    /// One request: the input record in, the output record out, `outputSize` the room before and the size
    /// after. 0 when the call itself worked; the record's own result tells whether the controller agreed.
    virtual std::int32_t callStructMethod(SMCConnection connection, std::uint32_t selector, const void* input,
                                          std::size_t inputSize, void* output, std::size_t& outputSize) = 0;
    virtual void close(SMCConnection connection) = 0;
};

} // namespace tarvo
