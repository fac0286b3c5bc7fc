#pragma once

#include <string>
#include <string_view>

namespace tarvo {

/// UTF-8 text with its Latin letters in capitals, whatever the process locale: ASCII, Latin-1 and Latin
/// Extended-A, which hold every letter of the program's languages. Everything else stays as it is, malformed
/// bytes too.
std::string upperCased(std::string_view text);

} // namespace tarvo
