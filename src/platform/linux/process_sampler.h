#pragma once

#include "platform/clock.h"
#include "platform/linux/process_scanner.h"
#include "platform/process_table.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Takes the passes over /proc for all consumers of the process. Calls within half a second of a pass share
/// it; each consumer's shares are measured from the pass that it saw before, however often others ask. The
/// first call of all takes two passes, a moment apart, so that it already measures. Any thread, one at a
/// time.
class ProcessSampler {
public:
    /// Blocks the calling thread for the time given.
    using Wait = std::function<void(std::chrono::milliseconds)>;

    static constexpr Seconds sharedFor{0.5};
    static constexpr Seconds longestWindow{90};
    static constexpr std::chrono::milliseconds firstWindow{300};

    /// What one consumer has seen.
    class Window {
        friend class ProcessSampler;
        std::shared_ptr<const ProcessScan> seen_;
        std::vector<std::uint64_t> growth_; ///< ticks of each process of `seen_` since the pass before
        Seconds length_{0};
    };

    /// The clock outlives the sampler.
    ProcessSampler(const Root& root, const Clock& clock, Wait wait);

    /// As ProcessTable::rows.
    std::vector<ProcessRow> rows(Window& window, ProcessOrder order, std::int64_t limit);

    /// Start time, in clock ticks after boot, of the process that was listed last under this number. Returns
    /// at once, even while a pass is under way.
    std::optional<std::uint64_t> listedStartTime(std::int32_t pid);

private:
    using Scan = std::shared_ptr<const ProcessScan>;

    bool bringUpToDate(Window& window);
    bool hasFreshScan() const;
    bool takeScan();
    std::shared_ptr<ProcessScan> unusedScan();
    bool canMeasureFrom(const Scan& earlier) const;
    std::string commandOf(const ScannedProcess& process, const ProcessScan& scan) const;
    std::vector<ProcessRow> firstRows(const Window& window, ProcessOrder order, std::size_t count);

    ProcessScanner scanner_;
    const Clock& clock_;
    Wait wait_;
    std::mutex mutex_; ///< guards everything below, the scanner and the windows
    std::vector<std::shared_ptr<ProcessScan>> scans_;
    Scan latest_;
    Scan previous_; ///< the pass before the latest
    std::vector<std::uint32_t> ranking_;
    std::mutex listedMutex_; ///< guards what follows
    Scan listed_;            ///< the latest that succeeded
};

/// One consumer's process table.
class SampledProcessTable : public ProcessTable {
public:
    /// The sampler outlives the table.
    explicit SampledProcessTable(ProcessSampler& sampler) : sampler_(sampler) {}

    std::vector<ProcessRow> rows(ProcessOrder order, std::int64_t limit) override {
        return sampler_.rows(window_, order, limit);
    }

private:
    ProcessSampler& sampler_;
    ProcessSampler::Window window_;
};

} // namespace tarvo::linux_platform
