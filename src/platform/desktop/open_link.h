#pragma once

#include <string>

namespace tarvo::desktop {

/// Opens a web address in the user's browser. Nothing happens for anything but http and https.
void openLink(const std::string& address);

} // namespace tarvo::desktop
