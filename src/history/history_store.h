#pragma once

#include "core/stats_readers.h"
#include "history/history_sample.h"
#include "platform/clock.h"
#include "platform/stored_file.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// The samples of the last 14 days, one a minute, kept in history.json (history_format.h). Every failure is
/// silent: what cannot be read starts empty, what cannot be written stays in memory for the next save. Main
/// thread only.
///
/// The file is written with every accepted sample. Of the samples that it already holds only the values are
/// kept in memory; their text is taken over from the file itself (StoredFile::replaceKeeping).
class HistoryStore : public HistoryRecorder {
public:
    static constexpr std::chrono::seconds retention{1'209'600};
    static constexpr std::chrono::seconds sampleInterval{60};
    /// A larger file is no history: 14 days of minutes are a tenth of this.
    static constexpr std::size_t maxFileSize = std::size_t{32} << 20;

    /// Loads what the file holds. Both references outlive the store.
    HistoryStore(StoredFile& file, const Clock& clock);

    WallTime lastSampleTime() const override { return lastSampleTime_; }
    void maybeRecord(double cpu, double mem, std::optional<double> cpuTemp) override;

    /// Oldest first, as long as the wall clock was not set back in between.
    const std::vector<HistorySample>& samples() const { return samples_; }
    /// Those dated within the last hours or later, in the same order; 0 normally gives none.
    std::vector<HistorySample> samples(double lastHours) const;

    /// True while the file lacks a sample and no write of it was tried.
    bool dirty() const { return dirty_; }
    /// Writes the file if dirty. A sample with a number that is not finite keeps it from being written.
    void save();

private:
    /// How the file's content relates to samples_: it is '[', the objects each with one character behind it.
    /// Of these, the first `dropped` bytes belong to samples that were pruned since, the rest to the first
    /// `samples`.
    struct Saved {
        std::size_t samples = 0;
        std::size_t bytes = 0;
        std::size_t dropped = 0;
    };

    void load();
    void prune();
    /// To be called before the first `count` samples go.
    void forgetSaved(std::size_t count);
    bool appendToFile(const std::string& added);
    void writeWhole(const std::string& objects);
    /// The objects of the samples from this one on, commas between and the closing bracket behind them;
    /// absent when one cannot be encoded.
    std::optional<std::string> encodeFrom(std::size_t first) const;

    StoredFile& file_;
    const Clock& clock_;
    std::vector<HistorySample> samples_;
    WallTime lastSampleTime_ = distantPastDate;
    bool dirty_ = false;
    std::optional<Saved> saved_; ///< absent: the next save writes everything
};

} // namespace tarvo
