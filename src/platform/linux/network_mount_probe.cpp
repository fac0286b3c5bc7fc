#include "platform/linux/network_mount_probe.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tarvo::linux_platform {

namespace {

constexpr std::chrono::seconds leftAlone{60};

} // namespace

// Shared with the thread that waits, which may outlive the probe.
struct NetworkMountProbe::Attempt {
    void finish(std::optional<FileSystemSize> answer) {
        const std::lock_guard lock(mutex);
        size = answer;
        isFinished = true;
        finished.notify_all();
    }
    bool waitUntil(std::chrono::steady_clock::time_point deadline) {
        std::unique_lock lock(mutex);
        return finished.wait_until(lock, deadline, [this] { return isFinished; });
    }

    std::mutex mutex;
    std::condition_variable finished;
    bool isFinished = false;
    std::optional<FileSystemSize> size;
    SteadyTime leftAloneUntil = distantPast; ///< used by the probe's thread only
};

NetworkMountProbe::NetworkMountProbe(Clock& clock, MeasureFileSystem measure, std::chrono::milliseconds limit)
    : clock_(clock), measure_(std::move(measure)), limit_(limit) {}

std::vector<std::optional<FileSystemSize>> NetworkMountProbe::measure(const std::vector<std::string>& paths) {
    std::vector<std::shared_ptr<Attempt>> attempts;
    for (const auto& path : paths)
        attempts.push_back(begin(path));

    // Threads wait by the system's own time, whatever the program's clock says.
    const auto deadline = std::chrono::steady_clock::now() + limit_;
    std::vector<std::optional<FileSystemSize>> sizes;
    for (std::size_t index = 0; index < paths.size(); ++index) {
        const auto& attempt = attempts[index];
        sizes.emplace_back();
        if (!attempt) continue;
        if (attempt->waitUntil(deadline)) {
            sizes.back() = attempt->size;
            unanswered_.erase(paths[index]);
        } else {
            attempt->leftAloneUntil = clock_.steadyNow() + leftAlone;
            unanswered_[paths[index]] = attempt;
        }
    }
    return sizes;
}

// Null while the path is left alone and where no thread can be had. A late answer to an earlier question is
// taken for the answer to this one.
std::shared_ptr<NetworkMountProbe::Attempt> NetworkMountProbe::begin(const std::string& path) {
    if (const auto earlier = unanswered_.find(path); earlier != unanswered_.end()) {
        const auto& attempt = earlier->second;
        return clock_.steadyNow() < attempt->leftAloneUntil ? nullptr : attempt;
    }
    auto attempt = std::make_shared<Attempt>();
    try {
        std::thread([attempt, measure = measure_, path] { attempt->finish(measure(path)); }).detach();
    } catch (const std::system_error&) {
        return nullptr;
    }
    return attempt;
}

} // namespace tarvo::linux_platform
