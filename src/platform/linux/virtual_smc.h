#pragma once

#include "platform/clock.h"
#include "platform/linux/nvml.h"
#include "platform/linux/root.h"
#include "platform/linux/smc_key_table.h"
#include "platform/sensor_names.h"
#include "platform/smc_user_client.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// A system management controller made of the kernel's sensors: it answers the records of smc_record.h from a
/// table of keys that is built when it is opened. The key table is described in docs/linux.md. Any number of
/// requests may run at once; opening and closing while none runs.
class VirtualSMC : public SMCUserClient, public SensorNames {
public:
    /// `nvml` may be null. The clock outlives this.
    VirtualSMC(Root root, const Clock& clock, std::shared_ptr<NVML> nvml);

    /// No service on a machine without any temperature, fan or system power.
    SMCService matchingService(std::string_view className) override;
    std::int32_t open(SMCService service, std::uint32_t type, SMCConnection& connection) override;
    void release(SMCService service) override;
    std::int32_t callStructMethod(SMCConnection connection, std::uint32_t selector, const void* input,
                                  std::size_t inputSize, void* output, std::size_t& outputSize) override;
    void close(SMCConnection connection) override;

    std::optional<SensorName> sensorName(std::string_view key) const override;

private:
    Root root_;
    const Clock& clock_;
    std::shared_ptr<NVML> nvml_;
    std::unique_ptr<const SMCKeyTable> found_; ///< built while looking for the service, not opened yet
    std::unique_ptr<const SMCKeyTable> table_; ///< of the open connection
    SMCConnection connection_ = 0;
};

} // namespace tarvo::linux_platform
