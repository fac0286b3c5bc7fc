#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Lines of the form key=value; lines of another form are passed over, blanks around both are not part of
/// them, and of a key that comes twice the last counts. With `section`, only the lines below the heading
/// "[section]".
std::map<std::string, std::string, std::less<>> parseKeyValues(std::string_view text,
                                                               std::string_view section = {});

} // namespace tarvo::linux_platform
