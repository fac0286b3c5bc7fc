#include "stored_records.h"

#include <memory>

namespace tarvo {
namespace {

std::filesystem::path fileIn(const std::filesystem::path& folder, const char* name) {
    return folder.empty() ? folder : folder / name;
}

} // namespace

StoredRecords::StoredRecords(const std::filesystem::path& folder, const Clock& clock)
    : historyFile_(fileIn(folder, "history.json")), history_(historyFile_, clock),
      alertLogFile_(fileIn(folder, "alertlog.json")),
      alertLog_([this, &clock] { return std::make_unique<AlertLogStore>(alertLogFile_, clock); }),
      sharedAlertLog_(alertLog_) {}

} // namespace tarvo
