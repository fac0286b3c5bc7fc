#include "platform/linux/process_sampler.h"

#include "platform/linux/process_command.h"
#include "platform/linux/process_growth.h"

#include <unistd.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarvo::linux_platform {

namespace {

constexpr double percent = 100;
constexpr Seconds shortestWindow{0.001};

double configured(int name, double fallback) {
    const auto value = ::sysconf(name);
    return value > 0 ? static_cast<double>(value) : fallback;
}

double ticksPerSecond() {
    static const auto value = configured(_SC_CLK_TCK, 100);
    return value;
}

double pageBytes() {
    static const auto value = configured(_SC_PAGESIZE, 4096);
    return value;
}

double residentShare(const ScannedProcess& process, const ProcessScan& scan) {
    if (scan.physicalBytes == 0) return 0;
    return static_cast<double>(process.residentPages) * pageBytes() * percent /
           static_cast<double>(scan.physicalBytes);
}

} // namespace

ProcessSampler::ProcessSampler(const Root& root, const Clock& clock, Wait wait)
    : scanner_(root), clock_(clock), wait_(std::move(wait)) {}

std::vector<ProcessRow> ProcessSampler::rows(Window& window, ProcessOrder order, std::int64_t limit) {
    const std::lock_guard lock(mutex_);
    if (!bringUpToDate(window)) return {};
    const auto wanted = static_cast<std::size_t>(std::max<std::int64_t>(limit, 1));
    return firstRows(window, order, std::min(wanted, window.seen_->processes.size()));
}

std::optional<std::uint64_t> ProcessSampler::listedStartTime(std::int32_t pid) {
    const std::lock_guard lock(listedMutex_);
    const auto* const process = listed_ ? listed_->find(pid) : nullptr;
    return process != nullptr ? std::optional(process->startTime) : std::nullopt;
}

bool ProcessSampler::bringUpToDate(Window& window) {
    if (!hasFreshScan() && !takeScan()) return false;
    if (window.seen_ == latest_) return true;
    auto earlier = canMeasureFrom(window.seen_) ? window.seen_ : previous_;
    if (!canMeasureFrom(earlier)) {
        wait_(firstWindow);
        earlier = latest_;
        if (!takeScan()) return false;
    }
    measureGrowth(*earlier, *latest_, window.growth_);
    window.length_ = std::max(Seconds(latest_->takenAt - earlier->takenAt), shortestWindow);
    window.seen_ = latest_;
    return true;
}

bool ProcessSampler::hasFreshScan() const {
    return latest_ && clock_.steadyNow() - latest_->takenAt <= sharedFor;
}

bool ProcessSampler::canMeasureFrom(const Scan& earlier) const {
    return earlier && latest_->takenAt - earlier->takenAt <= longestWindow;
}

bool ProcessSampler::takeScan() {
    const auto scan = unusedScan();
    scan->takenAt = clock_.steadyNow();
    if (!scanner_.scan(*scan)) {
        latest_.reset();
        previous_.reset();
        return false;
    }
    previous_ = std::exchange(latest_, scan);
    const std::lock_guard lock(listedMutex_);
    listed_ = scan;
    return true;
}

std::shared_ptr<ProcessScan> ProcessSampler::unusedScan() {
    for (const auto& scan : scans_) {
        if (scan.use_count() == 1) return scan;
    }
    return scans_.emplace_back(std::make_shared<ProcessScan>());
}

std::string ProcessSampler::commandOf(const ScannedProcess& process, const ProcessScan& scan) const {
    const auto name = scan.nameOf(process);
    // A kernel thread has no executable, which saves the two looks for it.
    return process.isKernelThread ? printableName(name)
                                  : processCommand(scanner_.folder(), process.pid, name);
}

std::vector<ProcessRow> ProcessSampler::firstRows(const Window& window, ProcessOrder order,
                                                  std::size_t count) {
    const auto& scan = *window.seen_;
    const auto weight = [&](std::uint32_t index) {
        return order == ProcessOrder::cpu ? window.growth_[index] : scan.processes[index].residentPages;
    };
    ranking_.resize(scan.processes.size());
    std::iota(ranking_.begin(), ranking_.end(), 0U);
    // Processes stand by ascending pid, so the index decides between equal ones.
    std::partial_sort(ranking_.begin(), ranking_.begin() + static_cast<std::ptrdiff_t>(count), ranking_.end(),
                      [&](std::uint32_t left, std::uint32_t right) {
                          return std::pair(weight(right), left) < std::pair(weight(left), right);
                      });
    const auto sharePerTick = percent / (ticksPerSecond() * window.length_.count());
    std::vector<ProcessRow> rows;
    rows.reserve(count);
    for (std::size_t position = 0; position < count; ++position) {
        const auto index = ranking_[position];
        const auto& process = scan.processes[index];
        rows.push_back({process.pid, static_cast<double>(window.growth_[index]) * sharePerTick,
                        residentShare(process, scan), commandOf(process, scan)});
    }
    return rows;
}

} // namespace tarvo::linux_platform
