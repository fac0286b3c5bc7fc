#pragma once

#include "platform/posix/environment.h"

#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// The language part of the user's locale, "cs" for "cs_CZ.UTF-8"; absent for the C locale and when none is
/// set. Read from the variables as the message catalogues of the system do: LC_ALL, LC_MESSAGES and LANG, the
/// first that is not empty, overruled by the first language of LANGUAGE unless that locale is C. The locale
/// need not be installed.
std::optional<std::string> systemLanguageCode(const Environment& environment);

} // namespace tarvo::linux_platform
