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

template <typename Record>
void writeRecord(JSONWriter& json, const Record& record);

template <std::integral Number>
void write(JSONWriter& json, Number number) {
    if constexpr (std::same_as<Number, bool>) {
        json.value(number);
    } else if constexpr (std::unsigned_integral<Number>) {
        json.value(std::uint64_t{number});
    } else {
        json.value(std::int64_t{number});
    }
}
void write(JSONWriter& json, double number) {
    json.value(number);
}
void write(JSONWriter& json, const std::string& text) {
    json.value(std::string_view(text));
}
void write(JSONWriter& json, WallTime date) {
    json.value(date);
}
template <typename Record>
void write(JSONWriter& json, const Record& record) {
    writeRecord(json, record);
}
template <typename Element>
void write(JSONWriter& json, const std::vector<Element>& list) {
    json.beginArray();
    for (const auto& element : list)
        write(json, element);
    json.endArray();
}

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

template <typename Record>
void writeRecord(JSONWriter& json, const Record& record) {
    json.beginObject();
    visitFields(record, MemberWriter{json});
    json.endObject();
}

} // namespace

void appendSnapshotJSON(std::string& out, const StatsSnapshot& snapshot) {
    JSONWriter json(out);
    writeRecord(json, snapshot);
}

} // namespace tarvo::status
