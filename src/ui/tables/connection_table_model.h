#pragma once

#include "processes/network_connection.h"
#include "ui/tables/record_table_model.h"

namespace tarvo::ui {

/// Open connections, with their states coloured.
class ConnectionTableModel : public RecordTableModel {
public:
    enum Column { processColumn, protocolColumn, localColumn, remoteColumn, stateColumn };

    explicit ConnectionTableModel(const LocalizationManager& loc, QLocale locale = QLocale());

    void setConnections(std::vector<NetworkConnection> connections);
    QString text(std::size_t record, int column) const override;

protected:
    int compare(std::size_t first, std::size_t second, int column) const override;
    int compareTied(std::size_t first, std::size_t second) const override;
    bool matches(std::size_t record, const QString& foldedQuery) const override;
    std::string identity(std::size_t record) const override;
    QVariant extra(std::size_t record, int column, int role) const override;

private:
    struct Row {
        NetworkConnection connection;
        QString folded;      ///< the process's name as it is searched and sorted
        int alikeBefore = 0; ///< a socket of several descriptors is listed once for each
    };

    std::vector<Row> rows_;
};

} // namespace tarvo::ui
