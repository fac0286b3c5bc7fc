#include "line_format.h"

#include "menubar/status_text.h"
#include "snapshot_json.h"
#include "waybar_object.h"

namespace tarvo::status {

void writeLine(std::string& line, OutputFormat format, const StatsSnapshot& snapshot,
               const Settings& settings, const LocalizationManager& localization) {
    line.clear();
    switch (format) {
    case OutputFormat::text:
        writeCombinedText(line, snapshot, settings);
        break;
    case OutputFormat::json:
        appendSnapshotJSON(line, snapshot);
        break;
    case OutputFormat::waybar:
        appendWaybarObject(line, snapshot, settings, localization.language());
        break;
    }
    line += '\n';
}

} // namespace tarvo::status
