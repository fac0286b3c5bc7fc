#include "history/alert_log_format.h"

#include "platform/iso8601.h"

#include <fmt/format.h>
#include <iterator>
#include <simdjson.h>

namespace tarvo {
namespace {

namespace dom = simdjson::dom;

void appendString(std::string& json, std::string_view text) {
    json += '"';
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            fmt::format_to(std::back_inserter(json), "\\u{:04x}", static_cast<unsigned>(c));
        } else {
            json += c;
        }
    }
    json += '"';
}

bool appendEntry(std::string& json, const AlertLogEntry& entry) {
    if (!simdjson::validate_utf8(entry.title) || !simdjson::validate_utf8(entry.body)) return false;
    json += R"({"id":")";
    json += entry.id.text();
    json += R"(","date":")";
    appendISO8601(json, entry.date);
    json += R"(","title":)";
    appendString(json, entry.title);
    json += R"(,"body":)";
    appendString(json, entry.body);
    json += '}';
    return true;
}

std::optional<AlertLogEntry> readEntry(const dom::element& element) {
    std::string_view id, date, title, body;
    if (element["id"].get(id) || element["date"].get(date) || element["title"].get(title) ||
        element["body"].get(body)) {
        return std::nullopt;
    }
    const auto uuid = UUID::parse(id);
    const auto time = parseISO8601(date);
    if (!uuid || !time) return std::nullopt;
    return AlertLogEntry{*uuid, *time, std::string(title), std::string(body)};
}

} // namespace

std::optional<std::string> encodeAlertLog(const std::vector<AlertLogEntry>& entries) {
    std::string json = "[";
    for (const AlertLogEntry& entry : entries) {
        if (json.size() > 1) json += ',';
        if (!appendEntry(json, entry)) return std::nullopt;
    }
    return json + ']';
}

std::optional<std::vector<AlertLogEntry>> parseAlertLog(std::string_view json) {
    dom::parser parser;
    dom::array array;
    if (parser.parse(json.data(), json.size()).get(array)) return std::nullopt;

    std::vector<AlertLogEntry> entries;
    for (const dom::element element : array) {
        auto entry = readEntry(element);
        if (!entry) return std::nullopt;
        entries.push_back(std::move(*entry));
    }
    return entries;
}

} // namespace tarvo
