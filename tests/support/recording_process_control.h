#pragma once

#include "platform/process_control.h"

#include <vector>

namespace tarvo {

/// Remembers which processes were held and which were asked to end; none is.
class RecordingProcessControl : public ProcessControl {
public:
    Terminate terminator(std::int32_t pid) override {
        held.push_back(pid);
        return [this, pid] {
            ended.push_back(pid);
            return answer;
        };
    }

    std::vector<std::int32_t> held;
    std::vector<std::int32_t> ended;
    bool answer = true;
};

} // namespace tarvo
