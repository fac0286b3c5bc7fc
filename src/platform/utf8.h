#pragma once

#include <string>
#include <string_view>

namespace tarvo {

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
bool isUTF8(std::string_view bytes);

/// The text without Unicode white space and line ends at both ends. The text is well-formed UTF-8.
std::string_view trimmedWhiteSpace(std::string_view text);

/// The bytes as one line of well-formed UTF-8: each control character of ASCII and each byte that is not part
/// of a well-formed sequence becomes "?".
std::string printableLine(std::string_view bytes);

} // namespace tarvo
