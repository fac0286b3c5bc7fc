#pragma once

#include "platform/sockets.h"

namespace tarvo {

class ScriptedSocketTable : public SocketTable {
public:
    std::vector<SocketRow> rows() override { return answer; }

    std::vector<SocketRow> answer;
};

class ScriptedProcessTraffic : public ProcessTraffic {
public:
    std::vector<TrafficRow> rows() override { return answer; }

    std::vector<TrafficRow> answer;
};

} // namespace tarvo
