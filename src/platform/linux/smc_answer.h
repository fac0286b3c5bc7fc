#pragma once

#include "platform/linux/smc_key_table.h"
#include "platform/smc_record.h"

namespace tarvo::linux_platform {

/// What the controller answers to one request; reads the sensor when the request asks for its bytes. Any
/// thread.
SMCRecord answerSMCRequest(const SMCKeyTable& table, const SMCRecord& request);

} // namespace tarvo::linux_platform
