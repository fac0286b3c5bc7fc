#pragma once

namespace tarvo::desktop {

/// Writes a log line for every widget that is painted from now on, where the log is asked for them. Called
/// once, after the application was made.
void logPaintsIfAsked();

} // namespace tarvo::desktop
