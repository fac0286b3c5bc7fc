#pragma once

#include "core/stats_readers.h"

#include <vector>

namespace tarvo {

/// Keeps what it is offered once a minute, as the real store does.
class RecordingHistory : public HistoryRecorder {
public:
    struct Sample {
        double cpu;
        double mem;
        std::optional<double> cpuTemp;
        bool operator==(const Sample&) const = default;
    };

    explicit RecordingHistory(const Clock& clock) : clock_(clock) {}

    WallTime lastSampleTime() const override { return last_; }
    void maybeRecord(double cpu, double mem, std::optional<double> cpuTemp) override {
        ++offers;
        if (clock_.wallNow() - last_ < std::chrono::seconds{60}) return;
        last_ = clock_.wallNow();
        samples.push_back({cpu, mem, cpuTemp});
    }

    std::vector<Sample> samples;
    int offers = 0;

private:
    const Clock& clock_;
    WallTime last_ = distantPastDate;
};

} // namespace tarvo
