#include "history/alert_log_store.h"

#include "core/lazy_instance.h"
#include "core/shared_instance.h"

#include <utility>

namespace tarvo {

AlertLogStore::AlertLogStore(StoredFile& file, const Clock& clock) : file_(file), clock_(clock) {
    const auto content = file_.read(maxFileSize);
    if (!content) return;
    auto entries = parseAlertLog(*content);
    if (!entries) return;
    entries_ = std::move(*entries);
    prune();
}

AlertLogStore& AlertLogStore::shared() {
    return SharedInstance<LazyInstance<AlertLogStore>>::get().get();
}

void AlertLogStore::insert(AlertLogEntry entry) {
    entries_.insert(entries_.begin(), std::move(entry));
}

void AlertLogStore::prune() {
    const WallTime cutOff = clock_.wallNow() - retention;
    std::erase_if(entries_, [cutOff](const AlertLogEntry& entry) { return entry.date < cutOff; });
    if (entries_.size() > maxEntries) entries_.erase(entries_.begin() + maxEntries, entries_.end());
}

void AlertLogStore::save() {
    if (const auto json = encodeAlertLog(entries_)) file_.replace(*json);
}

} // namespace tarvo
