#include "platform/linux/gpu_queue_stats.h"

#include "platform/linux/text_cursor.h"

#include <algorithm>

namespace tarvo::linux_platform {

GPUQueues parseGPUQueues(std::string_view text) {
    GPUQueues queues;
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        auto row = cursor;
        const auto name = row.field();
        const auto timestamp = row.number();
        row.field();
        const auto runtime = row.number();
        if (timestamp && runtime) queues.insert_or_assign(std::string(name), GPUQueue{*timestamp, *runtime});
    }
    return queues;
}

std::optional<double> busiestQueue(const GPUQueues& before, const GPUQueues& now) {
    std::optional<double> busiest;
    for (const auto& [name, queue] : now) {
        const auto earlier = before.find(name);
        if (earlier == before.end() || queue.timestamp <= earlier->second.timestamp) continue;
        const auto busy = queue.runtime - std::min(queue.runtime, earlier->second.runtime);
        const double share =
            static_cast<double>(busy) / static_cast<double>(queue.timestamp - earlier->second.timestamp);
        busiest = std::max(busiest.value_or(0), std::min(share * 100, 100.0));
    }
    return busiest;
}

} // namespace tarvo::linux_platform
