#include "line_writer.h"

#include "menubar/status_text.h"
#include "snapshot_json.h"
#include "waybar_object.h"

namespace tarvo::status {

const std::string& LineWriter::write(const StatsSnapshot& snapshot, AppLanguage language) {
    line_.clear();
    switch (format_) {
    case OutputFormat::text:
        writeCombinedText(line_, snapshot, settings_);
        break;
    case OutputFormat::json:
        appendSnapshotJSON(line_, snapshot);
        break;
    case OutputFormat::waybar:
        appendWaybarObject(line_, text_, snapshot, settings_, language);
        break;
    }
    line_ += '\n';
    return line_;
}

} // namespace tarvo::status
