#include "processes/network_connections_fetcher.h"

#include "processes/lsof_text.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tarvo::NetworkConnectionsFetcher {

namespace {

std::string orNone(std::optional<std::string>&& text) {
    return text ? std::move(*text) : std::string(noConnectionValue);
}

void fetchBy(std::function<std::vector<NetworkConnection>()> list, Dispatcher& dispatcher,
             Completion completion) {
    const auto work = [list = std::move(list), &dispatcher, completion = std::move(completion)] {
        // A task must be copyable, so the result travels behind a pointer, uncopied.
        const auto result = std::make_shared<std::vector<NetworkConnection>>(list());
        dispatcher.async([result, completion] { completion(std::move(*result)); });
    };
    dispatcher.global(QualityOfService::userInitiated, work);
}

} // namespace

std::vector<NetworkConnection> connections(std::vector<SocketRow> rows) {
    std::vector<NetworkConnection> result;
    result.reserve(rows.size());
    for (auto& row : rows) {
        result.push_back({UUID::random(), std::move(row.process), row.pid, std::move(row.protocol),
                          std::move(row.localAddress), orNone(std::move(row.remoteAddress)),
                          orNone(std::move(row.state))});
    }
    return result;
}

void fetch(ChildProcesses& children, Dispatcher& dispatcher, Completion completion) {
    fetchBy(
        [&children] {
            const auto text = children.output("/usr/sbin/lsof", {"-i", "-n", "-P"});
            return parseOpenFilesText(text.value_or(""));
        },
        dispatcher, std::move(completion));
}

void fetch(SocketTable& table, Dispatcher& dispatcher, Completion completion) {
    fetchBy([&table] { return connections(table.rows()); }, dispatcher, std::move(completion));
}

} // namespace tarvo::NetworkConnectionsFetcher
