#pragma once

#include "platform/clock.h"
#include "platform/linux/nvml.h"
#include "platform/linux/root.h"
#include "platform/linux/smc_key_table.h"

#include <memory>

namespace tarvo::linux_platform {

/// Lists the machine's sensors as keys; no sensor is read but those of a board's controller, whose
/// unconnected pins only their value gives away. `nvml` may be null: then NVIDIA's cards have no keys. The
/// clock outlives the table.
SMCKeyTable buildSMCKeyTable(const Root& root, const Clock& clock, const std::shared_ptr<NVML>& nvml);

} // namespace tarvo::linux_platform
