#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::status {

/// Writes JSON behind what a string already holds, compactly and without a copy. The text is valid UTF-8
/// whatever the values hold: malformed bytes become U+FFFD.
class JSONWriter {
public:
    explicit JSONWriter(std::string& out) : out_(out) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    /// Begins a member; its value follows.
    void key(std::string_view name);

    void value(bool flag);
    /// null for what is not a finite number.
    void value(double number);
    void value(std::int64_t number);
    void value(std::uint64_t number);
    void value(std::string_view text);
    /// ISO 8601, UTC, whole seconds.
    void value(WallTime date);

private:
    void open(char bracket);
    void close(char bracket);
    void separate();

    std::string& out_;
    bool needsComma_ = false;
};

/// Appends the text between quotation marks, escaped as JSON asks.
void appendJSONString(std::string& out, std::string_view text);

} // namespace tarvo::status
