#include "history/history_format.h"

#include "platform/iso8601.h"

#include <cmath>
#include <fmt/compile.h>
#include <fmt/format.h>
#include <iterator>
#include <simdjson.h>

namespace tarvo {
namespace {

namespace dom = simdjson::dom;

/// Room for one object; only sets how much is reserved at once.
constexpr std::size_t usualObjectSize = 80;

bool isFinite(const HistorySample& sample) {
    return std::isfinite(sample.cpu) && std::isfinite(sample.mem) &&
           std::isfinite(sample.cpuTemp.value_or(0));
}

std::optional<HistorySample> readSample(const dom::element& element) {
    dom::object object;
    if (element.get(object) != simdjson::SUCCESS) return std::nullopt;

    HistorySample sample;
    bool hasDate = false, hasCPU = false, hasMem = false;
    for (const auto [key, value] : object) {
        if (key == "cpu") {
            if (value.get(sample.cpu) != simdjson::SUCCESS) return std::nullopt;
            hasCPU = true;
        } else if (key == "mem") {
            if (value.get(sample.mem) != simdjson::SUCCESS) return std::nullopt;
            hasMem = true;
        } else if (key == "date") {
            std::string_view text;
            if (value.get(text) != simdjson::SUCCESS) return std::nullopt;
            const auto date = parseISO8601(text);
            if (!date) return std::nullopt;
            sample.date = *date;
            hasDate = true;
        } else if (key == "cpuTemp") {
            double celsius = 0;
            if (value.is_null()) {
                sample.cpuTemp.reset();
            } else if (value.get(celsius) == simdjson::SUCCESS) {
                sample.cpuTemp = celsius;
            } else {
                return std::nullopt;
            }
        }
    }
    if (!hasDate || !hasCPU || !hasMem) return std::nullopt;
    return sample;
}

} // namespace

bool appendHistorySample(std::string& json, const HistorySample& sample) {
    if (!isFinite(sample)) return false;
    json += R"({"date":")";
    appendISO8601(json, sample.date);
    auto end = fmt::format_to(std::back_inserter(json), FMT_COMPILE(R"(","cpu":{},"mem":{})"), sample.cpu,
                              sample.mem);
    if (sample.cpuTemp) fmt::format_to(end, FMT_COMPILE(R"(,"cpuTemp":{})"), *sample.cpuTemp);
    json += '}';
    return true;
}

std::optional<std::vector<HistorySample>> parseHistory(const std::string& json) {
    dom::parser parser;
    dom::array array;
    if (parser.parse(json).get(array) != simdjson::SUCCESS) return std::nullopt;

    std::vector<HistorySample> samples;
    samples.reserve(json.size() / usualObjectSize);
    for (const dom::element element : array) {
        const auto sample = readSample(element);
        if (!sample) return std::nullopt;
        samples.push_back(*sample);
    }
    return samples;
}

} // namespace tarvo
