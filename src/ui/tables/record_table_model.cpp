#include "ui/tables/record_table_model.h"

#include <algorithm>
#include <unordered_map>

namespace tarvo::ui {
namespace {

std::size_t place(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

RecordTableModel::RecordTableModel(std::span<const TableColumn> columns, const LocalizationManager& loc,
                                   QLocale locale)
    : columns_(columns), loc_(loc), locale_(std::move(locale)) {}

int RecordTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int RecordTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || place(index.row()) >= shown_.size()) return {};
    const std::size_t record = shown_[place(index.row())];
    if (role == Qt::DisplayRole) return text(record, index.column());
    if (role == Qt::TextAlignmentRole) {
        const bool isNumeric = columns_[place(index.column())].isNumeric;
        return static_cast<int>(Qt::AlignVCenter | (isNumeric ? Qt::AlignRight : Qt::AlignLeft));
    }
    return extra(record, index.column(), role);
}

QVariant RecordTableModel::extra(std::size_t, int, int) const {
    return {};
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || place(section) >= columns_.size()) return {};
    const TableColumn& column = columns_[place(section)];
    if (role == Qt::DisplayRole) return QString::fromStdString(loc_.t(column.title));
    if (role == Qt::TextAlignmentRole) {
        return static_cast<int>(Qt::AlignVCenter | (column.isNumeric ? Qt::AlignRight : Qt::AlignLeft));
    }
    if (role == Qt::InitialSortOrderRole) {
        return static_cast<int>(column.isNumeric ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
    return {};
}

void RecordTableModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (!shown_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void RecordTableModel::sort(int column, Qt::SortOrder order) {
    const bool sorts = column >= 0 && place(column) < columns_.size() && columns_[place(column)].sorts;
    if (!sorts || (column == sortColumn_ && order == sortOrder_)) return;
    rearrange([&] {
        sortColumn_ = column;
        sortOrder_ = order;
    });
}

void RecordTableModel::setQuery(const QString& query) {
    const QString wanted = folded(query);
    if (wanted == foldedQuery_) return;
    rearrange([&] { foldedQuery_ = wanted; });
}

void RecordTableModel::replaceRecords(const std::function<std::size_t()>& replace) {
    rearrange([&] { recordCount_ = replace(); });
}

// The records change and move at once: for the views that is one new layout, in which what they hold on to
// (selection, current cell, first visible row) is found again by its identity.
void RecordTableModel::rearrange(const std::function<void()>& change) {
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList held = persistentIndexList();
    std::vector<std::string> identities;
    identities.reserve(static_cast<std::size_t>(held.size()));
    for (const QModelIndex& index : held)
        identities.push_back(identity(record(index.row())));

    change();
    arrange();

    std::unordered_map<std::string, int> rows;
    if (!held.isEmpty()) {
        rows.reserve(shown_.size());
        for (std::size_t row = 0; row < shown_.size(); ++row)
            rows.emplace(identity(shown_[row]), static_cast<int>(row));
    }
    QModelIndexList found;
    found.reserve(held.size());
    for (qsizetype position = 0; position < held.size(); ++position) {
        const auto row = rows.find(identities[static_cast<std::size_t>(position)]);
        found << (row == rows.end() ? QModelIndex() : index(row->second, held[position].column()));
    }
    changePersistentIndexList(held, found);
    emit layoutChanged({}, VerticalSortHint);
}

void RecordTableModel::arrange() {
    shown_.clear();
    shown_.reserve(recordCount_);
    for (std::size_t record = 0; record < recordCount_; ++record) {
        if (foldedQuery_.isEmpty() || matches(record, foldedQuery_)) shown_.push_back(record);
    }
    if (sortColumn_ < 0) return;
    const int direction = sortOrder_ == Qt::AscendingOrder ? 1 : -1;
    std::stable_sort(shown_.begin(), shown_.end(), [&](std::size_t first, std::size_t second) {
        const int order = compare(first, second, sortColumn_) * direction;
        return order != 0 ? order < 0 : compareTied(first, second) < 0;
    });
}

} // namespace tarvo::ui
