#pragma once

#include "sensors/smc.h"

#include <optional>
#include <string>

namespace tarvo {

/// The type code as text, trailing blanks kept ("ui8 ").
std::string typeString(const CSMCReadResult& result);

/// The value of a reading by its type code: "flt ", "sp78", "fpe2", "ui8 ", "ui16", "ui32". Absent for any
/// other.
std::optional<double> decode(const CSMCReadResult& result);

} // namespace tarvo
