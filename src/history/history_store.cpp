#include "history/history_store.h"

#include "history/history_format.h"

#include <algorithm>
#include <string>

namespace tarvo {

HistoryStore::HistoryStore(StoredFile& file, const Clock& clock) : file_(file), clock_(clock) {
    load();
}

void HistoryStore::load() {
    const auto content = file_.read(maxFileSize);
    if (!content) return;
    auto samples = parseHistory(*content);
    if (!samples) return;
    samples_ = std::move(*samples);
    prune();
}

void HistoryStore::maybeRecord(double cpu, double mem, std::optional<double> cpuTemp) {
    const WallTime now = clock_.wallNow();
    if (now - lastSampleTime_ < sampleInterval) return;
    lastSampleTime_ = now;
    samples_.push_back({now, cpu, mem, cpuTemp});
    dirty_ = true;
    prune();
    save();
}

std::vector<HistorySample> HistoryStore::samples(double lastHours) const {
    const WallTime now = clock_.wallNow();
    const double seconds = lastHours * 3600;
    std::vector<HistorySample> recent;
    for (const HistorySample& sample : samples_) {
        if (Seconds(now - sample.date).count() <= seconds) recent.push_back(sample);
    }
    return recent;
}

void HistoryStore::prune() {
    const WallTime cutOff = clock_.wallNow() - retention;
    const auto isOld = [cutOff](const HistorySample& sample) { return sample.date < cutOff; };
    const auto firstKept = std::find_if_not(samples_.begin(), samples_.end(), isOld);
    forgetSaved(static_cast<std::size_t>(firstKept - samples_.begin()));
    samples_.erase(samples_.begin(), firstKept);
    // Old samples behind younger ones: the wall clock was set back in between.
    if (std::erase_if(samples_, isOld) > 0) saved_.reset();
}

void HistoryStore::forgetSaved(std::size_t count) {
    if (!saved_) return;
    if (count >= saved_->samples) {
        saved_.reset();
        return;
    }
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text.clear();
        appendHistorySample(text, samples_[i]);
        saved_->dropped += text.size() + 1;
    }
    saved_->samples -= count;
}

void HistoryStore::save() {
    if (!dirty_) return;
    if (saved_) {
        const auto added = encodeFrom(saved_->samples);
        if (!added) return;
        if (appendToFile(*added)) {
            dirty_ = false;
            return;
        }
    }
    const auto all = encodeFrom(0);
    if (!all) return;
    writeWhole(*all);
    dirty_ = false;
}

bool HistoryStore::appendToFile(const std::string& added) {
    const ContentRange kept{1 + saved_->dropped, saved_->bytes - saved_->dropped - 1};
    if (!file_.replaceKeeping("[", kept, "," + added)) return false;
    saved_ = Saved{samples_.size(), kept.length + 1 + added.size(), 0};
    return true;
}

void HistoryStore::writeWhole(const std::string& objects) {
    if (file_.replace("[" + objects)) saved_ = Saved{samples_.size(), objects.size(), 0};
}

std::optional<std::string> HistoryStore::encodeFrom(std::size_t first) const {
    constexpr std::size_t roomForObject = 100;
    std::string objects;
    objects.reserve((samples_.size() - first) * roomForObject + 1);
    for (std::size_t i = first; i < samples_.size(); ++i) {
        if (!appendHistorySample(objects, samples_[i])) return std::nullopt;
        objects += ',';
    }
    if (objects.empty()) return "]";
    objects.back() = ']';
    return objects;
}

} // namespace tarvo
