// What the kernel's sensors say and what the controller that is made of them is asked. The first 80 bytes are
// a request; each line after them is a key and the text of its file, "Tp00=45000".

#include "platform/linux/parse_number.h"
#include "platform/linux/smc_answer.h"
#include "platform/smc_user_client.h"
#include "sensors/sensor_monitor.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace tarvo;
using namespace tarvo::linux_platform;

namespace {

constexpr std::size_t keyLength = 4;

std::optional<double> valueOf(std::string_view key, std::string_view text) {
    const auto number = parseNumber<std::int64_t>(text);
    if (!number) return std::nullopt;
    if (key == "FNum") return static_cast<double>(*number & 0xFF); // counted, not read
    return static_cast<double>(*number) * (key.front() == 'T' ? 0.001 : 1);
}

SMCKeyTable tableOf(std::string_view text) {
    std::vector<SMCKey> keys;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.size() <= keyLength || line[keyLength] != '=') continue;
        const auto key = line.substr(0, keyLength);
        const auto value = valueOf(key, line.substr(keyLength + 1));
        const auto* const type = key == "FNum" ? "ui8 " : "flt ";
        keys.push_back({std::string(key), type, {}, [value] { return value; }});
    }
    const auto count = static_cast<double>(keys.size() + 1);
    keys.insert(keys.begin(), {"#KEY", "ui32", {}, [count] { return std::optional(count); }});
    return SMCKeyTable(std::move(keys));
}

/// A controller that answers from a table.
class TableClient : public SMCUserClient {
public:
    explicit TableClient(SMCKeyTable table) : table_(std::move(table)) {}
    SMCService matchingService(std::string_view) override { return 1; }
    std::int32_t open(SMCService, std::uint32_t, SMCConnection& connection) override {
        connection = 1;
        return 0;
    }
    void release(SMCService) override {}
    std::int32_t callStructMethod(SMCConnection, std::uint32_t, const void* input, std::size_t, void* output,
                                  std::size_t&) override {
        SMCRecord request;
        std::memcpy(&request, input, sizeof request);
        const auto answer = answerSMCRequest(table_, request);
        std::memcpy(output, &answer, sizeof answer);
        return 0;
    }
    void close(SMCConnection) override {}

private:
    SMCKeyTable table_;
};

bool isPlausible(double celsius) {
    return celsius > 0 && celsius < 130;
}

void check(const SensorMonitor& monitor) {
    const auto readings = monitor.read();
    for (const auto& celsius : {readings.cpuTempCelsius, readings.gpuTempCelsius}) {
        if (celsius && !isPlausible(*celsius)) std::abort();
    }
    if (readings.fanRPMs.size() > 10 || (!readings.hasFan && !readings.fanRPMs.empty())) std::abort();
    std::string last;
    for (const auto& reading : monitor.readAllTemperatures()) {
        if (!isPlausible(reading.celsius) || reading.key < last) std::abort();
        last = reading.key;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SMCRecord request{};
    if (size < sizeof request) return 0;
    std::memcpy(&request, data, sizeof request);
    auto table = tableOf({reinterpret_cast<const char*>(data) + sizeof request, size - sizeof request});
    answerSMCRequest(table, request);
    csmc_use_client(std::make_shared<TableClient>(std::move(table)));
    check(SensorMonitor());
    csmc_use_client(nullptr);
    return 0;
}
