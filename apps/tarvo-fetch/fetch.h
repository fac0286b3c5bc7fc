#pragma once

#include "platform/desktop/network/qt_https_client.h"

namespace tarvo {

/// Fetches the HTTPS address that is the first argument, within as many milliseconds as the second says, and
/// writes the reply to standard output. The exit status is 0 when that succeeded.
int fetchToStandardOutput(int argumentCount, char** arguments, desktop::HTTPSOptions options = {});

} // namespace tarvo
