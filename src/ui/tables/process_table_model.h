#pragma once

#include "core/stats_snapshot.h"
#include "ui/tables/record_table_model.h"

namespace tarvo::ui {

/// Processes with their shares and, in the last column, a button that ends each.
class ProcessTableModel : public RecordTableModel {
public:
    enum Column { nameColumn, pidColumn, cpuColumn, memoryColumn, quitColumn };

    explicit ProcessTableModel(const LocalizationManager& loc, QLocale locale = QLocale());

    void setProcesses(const std::vector<ProcInfo>& processes);
    const ProcInfo& process(std::size_t record) const { return rows_[record].process; }
    QString text(std::size_t record, int column) const override;

protected:
    int compare(std::size_t first, std::size_t second, int column) const override;
    int compareTied(std::size_t first, std::size_t second) const override;
    bool matches(std::size_t record, const QString& foldedQuery) const override;
    std::string identity(std::size_t record) const override;
    QVariant extra(std::size_t record, int column, int role) const override;

private:
    struct Row {
        ProcInfo process;
        QString folded; ///< the name as it is searched and sorted
    };

    const LocalizationManager& loc_;
    std::vector<Row> rows_;
};

} // namespace tarvo::ui
