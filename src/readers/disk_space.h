#pragma once

#include "core/reader_records.h"
#include "platform/volumes.h"

#include <optional>

namespace tarvo {

/// Free and total capacity of the volume of "/", in GB of 10^9 bytes; absent unless both are known. Returns
/// at once.
std::optional<DiskSpace> diskSpace(Volumes& volumes);

} // namespace tarvo
