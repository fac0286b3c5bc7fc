#include "processes/nettop_text.h"

#include "platform/utf8.h"
#include "processes/text_fields.h"

#include <optional>
#include <string>
#include <utility>

namespace tarvo {

namespace {

/// Takes the text up to the next comma, or all of it; absent when the text had ended before.
std::optional<std::string_view> takeValue(std::optional<std::string_view>& rest) {
    if (!rest) return std::nullopt;
    const auto comma = rest->find(',');
    const auto value = rest->substr(0, comma);
    rest = comma == std::string_view::npos ? std::nullopt : std::optional(rest->substr(comma + 1));
    return value;
}

std::optional<NetProcInfo> parseLine(std::string_view line) {
    std::optional<std::string_view> rest = line;
    const auto label = takeValue(rest);
    const auto received = takeValue(rest);
    const auto sent = takeValue(rest);
    if (!sent) return std::nullopt;
    const auto dot = label->rfind('.');
    const auto bytesIn = wholeNumber<std::uint64_t>(*received);
    const auto bytesOut = wholeNumber<std::uint64_t>(*sent);
    if (dot == std::string_view::npos || !bytesIn || !bytesOut) return std::nullopt;
    return NetProcInfo{std::string(label->substr(0, dot)), *bytesIn, *bytesOut};
}

} // namespace

std::vector<NetProcInfo> parseNetworkStatisticsText(std::string_view text) {
    std::vector<NetProcInfo> processes;
    if (!isUTF8(text)) return processes;
    bool isHeader = true;
    forEachLine(text, [&](std::string_view line) {
        if (!std::exchange(isHeader, false)) {
            if (auto process = parseLine(line)) processes.push_back(std::move(*process));
        }
        return true;
    });
    return processes;
}

} // namespace tarvo
