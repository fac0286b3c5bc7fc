#pragma once

#include "platform/process_table.h"

#include <utility>

namespace tarvo {

/// Answers the rows that the test says, all of them whatever the limit.
class ScriptedProcessTable : public ProcessTable {
public:
    std::vector<ProcessRow> rows(ProcessOrder order, std::int64_t limit) override {
        asked.emplace_back(order, limit);
        return answer;
    }

    std::vector<ProcessRow> answer;
    std::vector<std::pair<ProcessOrder, std::int64_t>> asked;
};

} // namespace tarvo
