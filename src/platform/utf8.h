#pragma once

#include <string_view>

namespace tarvo {

/// Whether the bytes are well-formed UTF-8 (RFC 3629): no overlong forms, surrogates or values past U+10FFFF.
bool isValidUTF8(std::string_view text);

} // namespace tarvo
