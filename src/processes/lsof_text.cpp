#include "processes/lsof_text.h"

#include "platform/utf8.h"
#include "processes/text_fields.h"

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace tarvo {

namespace {

constexpr std::size_t columnsBeforeName = 8;

std::string joinFields(std::string_view rest) {
    std::string joined;
    for (auto field = takeField(rest); !field.empty(); field = takeField(rest)) {
        if (!joined.empty()) joined.push_back(' ');
        joined.append(field);
    }
    return joined;
}

/// Parts the name column, e.g. "127.0.0.1:5000->127.0.0.1:60000 (ESTABLISHED)", into endpoints and state.
void takeName(std::string_view name, NetworkConnection& connection) {
    connection.state = noConnectionValue;
    connection.remoteAddress = noConnectionValue;
    const auto opening = name.rfind('(');
    if (opening != std::string_view::npos && name.ends_with(')')) {
        connection.state = name.substr(opening + 1, name.size() - opening - 2);
        name = trimBlanks(name.substr(0, opening));
    }
    const auto arrow = name.find("->");
    connection.localAddress = name.substr(0, arrow);
    if (arrow != std::string_view::npos) connection.remoteAddress = name.substr(arrow + 2);
}

std::optional<NetworkConnection> parseLine(std::string_view line) {
    std::array<std::string_view, columnsBeforeName> columns;
    for (auto& column : columns)
        column = takeField(line);
    const auto pid = wholeNumber<std::int32_t>(columns[1]);
    if (columns.back().empty() || !pid) return std::nullopt;
    NetworkConnection connection;
    connection.id = UUID::random();
    connection.process = columns[0];
    connection.pid = *pid;
    connection.proto_ = columns.back();
    takeName(joinFields(line), connection);
    return connection;
}

} // namespace

std::vector<NetworkConnection> parseOpenFilesText(std::string_view text) {
    std::vector<NetworkConnection> connections;
    if (!isUTF8(text)) return connections;
    bool isHeader = true;
    forEachLine(text, [&](std::string_view line) {
        if (!std::exchange(isHeader, false)) {
            if (auto connection = parseLine(line)) connections.push_back(std::move(*connection));
        }
        return true;
    });
    return connections;
}

} // namespace tarvo
