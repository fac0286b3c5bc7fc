#include "ui/tables/connection_table_model.h"

#include "readers/network_state_color.h"
#include "ui/style/color.h"
#include "ui/tables/natural_order.h"
#include "ui/tables/three_way.h"

#include <fmt/format.h>

#include <array>
#include <unordered_map>

namespace tarvo::ui {
namespace {

constexpr std::array<TableColumn, 5> columnTable{{
    {{.cs = "Proces", .en = "Process"}},
    {{.cs = "Protokol", .en = "Protocol"}},
    {{.cs = "Lokální", .en = "Local"}, false, true, true},
    {{.cs = "Vzdálená", .en = "Remote"}, false, true, true},
    {{.cs = "Stav", .en = "State"}},
}};

ColorName colorName(NetworkStateColor color) {
    switch (color) {
    case NetworkStateColor::green:
        return ColorName::green;
    case NetworkStateColor::blue:
        return ColorName::blue;
    case NetworkStateColor::orange:
        return ColorName::orange;
    case NetworkStateColor::purple:
        return ColorName::purple;
    case NetworkStateColor::grey:
        break;
    }
    return ColorName::gray;
}

const std::string& field(const NetworkConnection& connection, int column) {
    switch (column) {
    case ConnectionTableModel::protocolColumn:
        return connection.proto_;
    case ConnectionTableModel::localColumn:
        return connection.localAddress;
    case ConnectionTableModel::remoteColumn:
        return connection.remoteAddress;
    case ConnectionTableModel::stateColumn:
        return connection.state;
    default:
        return connection.process;
    }
}

// The state is left out: it changes while the connection stays the same.
std::string endpoints(const NetworkConnection& connection) {
    return fmt::format("{} {} {} {}", connection.pid, connection.proto_, connection.localAddress,
                       connection.remoteAddress);
}

} // namespace

ConnectionTableModel::ConnectionTableModel(const LocalizationManager& loc, QLocale locale)
    : RecordTableModel(columnTable, loc, std::move(locale)) {}

void ConnectionTableModel::setConnections(std::vector<NetworkConnection> connections) {
    std::vector<Row> rows;
    rows.reserve(connections.size());
    std::unordered_map<std::string, int> alike;
    alike.reserve(connections.size());
    for (NetworkConnection& connection : connections) {
        const int before = alike[endpoints(connection)]++;
        QString name = folded(QString::fromStdString(connection.process));
        rows.push_back({std::move(connection), std::move(name), before});
    }
    replaceRecords([&] {
        rows_ = std::move(rows);
        return rows_.size();
    });
}

QString ConnectionTableModel::text(std::size_t record, int column) const {
    return QString::fromStdString(field(rows_[record].connection, column));
}

int ConnectionTableModel::compare(std::size_t first, std::size_t second, int column) const {
    const Row& one = rows_[first];
    const Row& other = rows_[second];
    if (column == processColumn) return one.folded.compare(other.folded);
    return naturalOrder(field(one.connection, column), field(other.connection, column));
}

int ConnectionTableModel::compareTied(std::size_t first, std::size_t second) const {
    const Row& one = rows_[first];
    const Row& other = rows_[second];
    if (const int order = one.folded.compare(other.folded)) return order;
    if (const int order = threeWay(one.connection.pid, other.connection.pid)) return order;
    if (const int order = naturalOrder(one.connection.localAddress, other.connection.localAddress))
        return order;
    return naturalOrder(one.connection.remoteAddress, other.connection.remoteAddress);
}

bool ConnectionTableModel::matches(std::size_t record, const QString& foldedQuery) const {
    const Row& row = rows_[record];
    if (row.folded.contains(foldedQuery)) return true;
    // Addresses, protocols and states are in Latin letters: the usual lower case is that of every locale.
    for (int column = protocolColumn; column <= stateColumn; ++column) {
        if (text(record, column).contains(foldedQuery, Qt::CaseInsensitive)) return true;
    }
    return false;
}

std::string ConnectionTableModel::identity(std::size_t record) const {
    const Row& row = rows_[record];
    return fmt::format("{} {}", endpoints(row.connection), row.alikeBefore);
}

QVariant ConnectionTableModel::extra(std::size_t record, int column, int role) const {
    if (column == processColumn && role == cellIconRole) return rows_[record].connection.pid;
    if (column != stateColumn || role != cellColorRole) return {};
    return static_cast<int>(colorName(networkStateColor(rows_[record].connection.state)));
}

} // namespace tarvo::ui
