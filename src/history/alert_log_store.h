#pragma once

#include "history/alert_log_format.h"
#include "platform/clock.h"
#include "platform/stored_file.h"

#include <cstddef>
#include <vector>

namespace tarvo {

/// The notifications of the last 30 days, newest first, kept in alertlog.json (alert_log_format.h). Every
/// failure is silent: what cannot be read starts empty, what cannot be written stays in memory. Main thread
/// only.
class AlertLogStore {
public:
    static constexpr std::chrono::seconds retention{2'592'000};
    static constexpr std::size_t maxEntries = 500;
    /// A larger file is no alert log.
    static constexpr std::size_t maxFileSize = std::size_t{16} << 20;

    /// Loads what the file holds; writes nothing. Both references outlive the store.
    AlertLogStore(StoredFile& file, const Clock& clock);

    /// The instance that the whole process uses, made at its first use, whichever thread comes first. What it
    /// is made of is said by the composition root, which installs a
    /// SharedInstance<LazyInstance<AlertLogStore>>.
    static AlertLogStore& shared();

    const std::vector<AlertLogEntry>& entries() const { return entries_; }

    /// Puts the entry in front of the others; prune() and save() are the caller's next steps.
    void insert(AlertLogEntry entry);
    /// Drops what is older than 30 days and all but the newest 500.
    void prune();
    void save();

private:
    StoredFile& file_;
    const Clock& clock_;
    std::vector<AlertLogEntry> entries_;
};

} // namespace tarvo
