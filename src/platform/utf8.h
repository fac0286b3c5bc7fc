#pragma once

#include <string_view>

namespace tarvo {

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
bool isUTF8(std::string_view bytes);

/// The text without Unicode white space and line ends at both ends. The text is well-formed UTF-8.
std::string_view trimmedWhiteSpace(std::string_view text);

} // namespace tarvo
