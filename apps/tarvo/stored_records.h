#pragma once

#include "core/lazy_instance.h"
#include "core/shared_instance.h"
#include "history/alert_log_store.h"
#include "history/history_store.h"
#include "platform/posix/atomic_file.h"

#include <filesystem>

namespace tarvo {

/// What the program itself stores in its data folder: the history, read at once, and the alert log, read when
/// it is first asked for. Main thread only.
class StoredRecords {
public:
    /// An empty folder: nothing is read or written. The clock outlives the records.
    StoredRecords(const std::filesystem::path& folder, const Clock& clock);

    HistoryStore& history() { return history_; }

private:
    AtomicFile historyFile_;
    HistoryStore history_;
    AtomicFile alertLogFile_;
    LazyInstance<AlertLogStore> alertLog_;
    SharedInstance<LazyInstance<AlertLogStore>> sharedAlertLog_;
};

} // namespace tarvo
