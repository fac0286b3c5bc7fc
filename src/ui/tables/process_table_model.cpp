#include "ui/tables/process_table_model.h"

#include "ui/tables/three_way.h"

#include <fmt/format.h>

#include <array>

namespace tarvo::ui {
namespace {

constexpr std::array<TableColumn, 5> columnTable{{
    {{.cs = "Název", .en = "Name"}, false, true, true},
    {{.cs = "PID", .en = "PID"}, true},
    {{.cs = "CPU %", .en = "CPU %"}, true},
    {{.cs = "Paměť %", .en = "Mem %"}, true},
    {{.cs = "", .en = ""}, false, false},
}};

QString percentText(double percent) {
    return QString::fromStdString(fmt::format("{:.1f}%", percent));
}

} // namespace

ProcessTableModel::ProcessTableModel(const LocalizationManager& loc, QLocale locale)
    : RecordTableModel(columnTable, loc, std::move(locale)), loc_(loc) {}

void ProcessTableModel::setProcesses(const std::vector<ProcInfo>& processes) {
    std::vector<Row> rows;
    rows.reserve(processes.size());
    for (const ProcInfo& process : processes)
        rows.push_back({process, folded(QString::fromStdString(process.name))});
    replaceRecords([&] {
        rows_ = std::move(rows);
        return rows_.size();
    });
}

QString ProcessTableModel::text(std::size_t record, int column) const {
    const ProcInfo& process = rows_[record].process;
    switch (column) {
    case nameColumn:
        return QString::fromStdString(process.name);
    case pidColumn:
        return QString::number(process.pid);
    case cpuColumn:
        return percentText(process.cpu);
    case memoryColumn:
        return percentText(process.memPercent);
    default:
        return {};
    }
}

int ProcessTableModel::compare(std::size_t first, std::size_t second, int column) const {
    const Row& one = rows_[first];
    const Row& other = rows_[second];
    switch (column) {
    case nameColumn:
        return one.folded.compare(other.folded);
    case pidColumn:
        return threeWay(one.process.pid, other.process.pid);
    case cpuColumn:
        return threeWay(one.process.cpu, other.process.cpu);
    case memoryColumn:
        return threeWay(one.process.memPercent, other.process.memPercent);
    default:
        return 0;
    }
}

int ProcessTableModel::compareTied(std::size_t first, std::size_t second) const {
    const int order = rows_[first].folded.compare(rows_[second].folded);
    return order != 0 ? order : threeWay(rows_[first].process.pid, rows_[second].process.pid);
}

bool ProcessTableModel::matches(std::size_t record, const QString& foldedQuery) const {
    return rows_[record].folded.contains(foldedQuery);
}

// A number that was taken over by another program is another process.
std::string ProcessTableModel::identity(std::size_t record) const {
    const ProcInfo& process = rows_[record].process;
    return fmt::format("{} {}", process.pid, process.name);
}

QVariant ProcessTableModel::extra(std::size_t record, int column, int role) const {
    if (column == nameColumn && role == cellIconRole) return rows_[record].process.pid;
    if (column != quitColumn) return {};
    if (role == cellSymbolRole) return QStringLiteral("xmark.circle.fill");
    const bool names = role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
    return names ? QString::fromStdString(loc_.t({.cs = "Ukončit proces", .en = "Quit Process"}))
                 : QVariant();
}

} // namespace tarvo::ui
