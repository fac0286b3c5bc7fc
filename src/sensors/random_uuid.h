#pragma once

#include <string>

namespace tarvo {

/// A fresh random UUID (RFC 4122, version 4) as text, upper case.
std::string randomUUID();

} // namespace tarvo
