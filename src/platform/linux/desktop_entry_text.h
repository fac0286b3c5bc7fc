#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

// How desktop files are written (freedesktop.org Desktop Entry Specification 1.5), whatever they are for.

/// Calls `use` for each key of the [Desktop Entry] group in the order of the file, with its value as written.
void readDesktopEntryKeys(std::string_view text,
                          const std::function<void(std::string_view key, std::string_view value)>& use);

/// A value of the type string without its escapes; a backslash before any other character stays.
std::string desktopEntryString(std::string_view value);

/// The words of an Exec value, quotes and escapes resolved, field codes as they are. Empty when a quote is
/// not closed.
std::vector<std::string> execWords(std::string_view value);

} // namespace tarvo::linux_platform
