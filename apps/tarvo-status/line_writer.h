#pragma once

#include "core/settings.h"
#include "core/stats_snapshot.h"
#include "localization/app_language.h"
#include "options.h"

#include <string>

namespace tarvo::status {

/// Makes the line of a snapshot. It keeps its memory, so that a steady line asks for none.
class LineWriter {
public:
    /// `settings` outlives the writer.
    LineWriter(OutputFormat format, const Settings& settings) : format_(format), settings_(settings) {}

    /// The line with its line feed; valid until the next call.
    const std::string& write(const StatsSnapshot& snapshot, AppLanguage language);

private:
    OutputFormat format_;
    const Settings& settings_;
    std::string line_;
    std::string text_;
};

} // namespace tarvo::status
