#include "snapshot_json.h"

#include "json_writer.h"

#include <cmath>
#include <concepts>

namespace tarvo::status {
namespace {

template <typename Visit>
void visitFields(const BatteryInfo& record, Visit&& visit) {
    visit("percentage", record.percentage);
    visit("isCharging", record.isCharging);
    visit("isPluggedIn", record.isPluggedIn);
    visit("isFullyCharged", record.isFullyCharged);
    visit("timeToEmptyMinutes", record.timeToEmptyMinutes);
    visit("timeToFullMinutes", record.timeToFullMinutes);
    visit("cycleCount", record.cycleCount);
    visit("healthPercent", record.healthPercent);
}

template <typename Visit>
void visitFields(const TimeMachineInfo& record, Visit&& visit) {
    visit("isRunning", record.isRunning);
    visit("percent", record.percent);
    visit("lastBackupDate", record.lastBackupDate);
}

template <typename Visit>
void visitFields(const ProcInfo& record, Visit&& visit) {
    visit("pid", record.pid);
    visit("name", record.name);
    visit("cpu", record.cpu);
    visit("memPercent", record.memPercent);
}

template <typename Visit>
void visitFields(const NetProcInfo& record, Visit&& visit) {
    visit("name", record.name);
    visit("bytesIn", record.bytesIn);
    visit("bytesOut", record.bytesOut);
}

template <typename Visit>
void visitFields(const StatsSnapshot& record, Visit&& visit) {
    visit("cpu", record.cpu);
    visit("perCore", record.perCore);
    visit("memPercent", record.memPercent);
    visit("memUsedGB", record.memUsedGB);
    visit("memTotalGB", record.memTotalGB);
    visit("memActiveGB", record.memActiveGB);
    visit("memWiredGB", record.memWiredGB);
    visit("memCompressedGB", record.memCompressedGB);
    visit("memInactiveGB", record.memInactiveGB);
    visit("memFreeGB", record.memFreeGB);
    visit("swapUsedGB", record.swapUsedGB);
    visit("swapTotalGB", record.swapTotalGB);
    visit("loadAvg1", record.loadAvg1);
    visit("loadAvg5", record.loadAvg5);
    visit("loadAvg15", record.loadAvg15);
    visit("cpuTemp", record.cpuTemp);
    visit("gpuTemp", record.gpuTemp);
    visit("gpuUtil", record.gpuUtil);
    visit("hasFan", record.hasFan);
    visit("fanRPMs", record.fanRPMs);
    visit("powerWatts", record.powerWatts);
    visit("diskFreeGB", record.diskFreeGB);
    visit("diskTotalGB", record.diskTotalGB);
    visit("diskReadRate", record.diskReadRate);
    visit("diskWriteRate", record.diskWriteRate);
    visit("netInRate", record.netInRate);
    visit("netOutRate", record.netOutRate);
    visit("localIP", record.localIP);
    visit("publicIP", record.publicIP);
    visit("totalNetIn", record.totalNetIn);
    visit("totalNetOut", record.totalNetOut);
    visit("battery", record.battery);
    visit("topCPU", record.topCPU);
    visit("topMem", record.topMem);
    visit("topNetProcesses", record.topNetProcesses);
    visit("timeMachine", record.timeMachine);
    visit("wifiSSID", record.wifiSSID);
}

template <typename Value>
void write(JSONWriter& json, const Value& value);

struct MemberWriter {
    JSONWriter& json;

    template <typename Value>
    void operator()(std::string_view name, const std::optional<Value>& value) const {
        if (value) (*this)(name, *value);
    }
    void operator()(std::string_view name, double number) const {
        if (std::isfinite(number)) member(name, number);
    }
    template <typename Value>
    void operator()(std::string_view name, const Value& value) const {
        member(name, value);
    }

private:
    template <typename Value>
    void member(std::string_view name, const Value& value) const {
        json.key(name);
        write(json, value);
    }
};

template <typename Value>
inline constexpr bool isList = false;
template <typename Element>
inline constexpr bool isList<std::vector<Element>> = true;

template <typename Value>
void write(JSONWriter& json, const Value& value) {
    if constexpr (isList<Value>) {
        json.beginArray();
        for (const auto& element : value)
            write(json, element);
        json.endArray();
    } else if constexpr (std::same_as<Value, std::string>) {
        json.value(std::string_view(value));
    } else if constexpr (std::same_as<Value, std::int32_t>) {
        json.value(std::int64_t{value});
    } else if constexpr (requires { json.value(value); }) {
        json.value(value);
    } else {
        json.beginObject();
        visitFields(value, MemberWriter{json});
        json.endObject();
    }
}

} // namespace

void appendSnapshotJSON(std::string& out, const StatsSnapshot& snapshot) {
    JSONWriter json(out);
    write(json, snapshot);
}

} // namespace tarvo::status
