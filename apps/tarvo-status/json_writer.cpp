#include "json_writer.h"

#include "platform/iso8601.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>

namespace tarvo::status {
namespace {

// How long the well-formed UTF-8 sequence at the beginning is; 0 when there is none.
std::size_t sequenceLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto follows = [&](std::size_t i, unsigned low, unsigned high) {
        return i < text.size() && byte(i) >= low && byte(i) <= high;
    };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return follows(1, 0x80, 0xBF) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
        const unsigned high = lead == 0xED ? 0x9F : 0xBF; // no surrogates
        return follows(1, low, high) && follows(2, 0x80, 0xBF) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned high = lead == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
        return follows(1, low, high) && follows(2, 0x80, 0xBF) && follows(3, 0x80, 0xBF) ? 4 : 0;
    }
    return 0;
}

void appendEscaped(std::string& out, char character) {
    switch (character) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(character);
    if (code < 0x20) {
        fmt::format_to(std::back_inserter(out), "\\u{:04x}", code);
    } else {
        out += character;
    }
}

} // namespace

void appendJSONString(std::string& out, std::string_view text) {
    out += '"';
    while (!text.empty()) {
        const auto length = sequenceLength(text);
        if (length == 1) {
            appendEscaped(out, text.front());
        } else if (length == 0) {
            out += "\uFFFD";
        } else {
            out += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    out += '"';
}

void JSONWriter::open(char bracket) {
    separate();
    out_ += bracket;
    needsComma_ = false;
}

void JSONWriter::close(char bracket) {
    out_ += bracket;
    needsComma_ = true;
}

void JSONWriter::separate() {
    if (needsComma_) out_ += ',';
    needsComma_ = true;
}

void JSONWriter::key(std::string_view name) {
    separate();
    appendJSONString(out_, name);
    out_ += ':';
    needsComma_ = false;
}

void JSONWriter::value(bool flag) {
    separate();
    out_ += flag ? "true" : "false";
}

void JSONWriter::value(double number) {
    separate();
    if (std::isfinite(number)) {
        fmt::format_to(std::back_inserter(out_), "{}", number);
    } else {
        out_ += "null";
    }
}

void JSONWriter::value(std::int64_t number) {
    separate();
    fmt::format_to(std::back_inserter(out_), "{}", number);
}

void JSONWriter::value(std::uint64_t number) {
    separate();
    fmt::format_to(std::back_inserter(out_), "{}", number);
}

void JSONWriter::value(std::string_view text) {
    separate();
    appendJSONString(out_, text);
}

void JSONWriter::value(WallTime date) {
    separate();
    out_ += '"';
    appendISO8601(out_, date);
    out_ += '"';
}

} // namespace tarvo::status
