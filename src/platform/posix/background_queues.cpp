#include "platform/posix/background_queues.h"

#include <algorithm>
#include <utility>

namespace tarvo {
namespace {

class OneThreadQueue : public SerialQueue {
public:
    explicit OneThreadQueue(std::shared_ptr<WorkerThreads> thread) : thread_(std::move(thread)) {}
    void async(Task task) override { thread_->async(std::move(task)); }

private:
    std::shared_ptr<WorkerThreads> thread_;
};

} // namespace

std::unique_ptr<SerialQueue> BackgroundQueues::makeSerialQueue() {
    std::erase_if(serial_, [](const auto& queue) { return queue.use_count() == 1 && queue->count() == 0; });
    serial_.push_back(std::make_shared<WorkerThreads>(1, idleTime_));
    return std::make_unique<OneThreadQueue>(serial_.back());
}

bool BackgroundQueues::finish(std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    const auto left = [end] {
        const auto time = end - std::chrono::steady_clock::now();
        return std::max(std::chrono::duration_cast<std::chrono::milliseconds>(time),
                        std::chrono::milliseconds{0});
    };
    bool ended = global_.finish(left());
    for (const auto& queue : serial_)
        ended = queue->finish(left()) && ended;
    return ended;
}

} // namespace tarvo
