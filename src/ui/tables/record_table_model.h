#pragma once

#include "localization/localization_manager.h"

#include <QAbstractTableModel>
#include <QLocale>

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace tarvo::ui {

struct TableColumn {
    LKey title;
    bool isNumeric = false; ///< right-aligned; the first click on its header sorts the largest to the top
    bool sorts = true;
    bool stretches = false; ///< takes the room that is left over, and gives way where there is too little
};

/// What a cell shows besides its text.
enum TableRole {
    cellColorRole = Qt::UserRole, ///< int of a ColorName; absent: the text colour
    cellIconRole,                 ///< int pid whose icon stands before the text
    cellSymbolRole,               ///< QString: a symbol to press instead of a text
};

/// Records as rows of a table, sorted by one column and filtered by a text. What changes the rows keeps the
/// selection and the current cell with their records, which are recognised by their identity. Main thread
/// only.
class RecordTableModel : public QAbstractTableModel {
public:
    /// The columns stay where they are; `loc` outlives the model.
    RecordTableModel(std::span<const TableColumn> columns, const LocalizationManager& loc, QLocale locale);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    /// Shows only the records that match, upper or lower case; an empty query shows all.
    void setQuery(const QString& query);
    /// To be called when the language was changed.
    void retranslate();

    std::span<const TableColumn> columns() const { return columns_; }
    int sortColumn() const { return sortColumn_; }
    Qt::SortOrder sortOrder() const { return sortOrder_; }
    /// The record that stands in a row.
    std::size_t record(int row) const { return shown_[static_cast<std::size_t>(row)]; }
    std::size_t recordCount() const { return recordCount_; }

    virtual QString text(std::size_t record, int column) const = 0;

protected:
    /// `replace` puts other records in place of the present ones and returns how many there are.
    void replaceRecords(const std::function<std::size_t()>& replace);
    /// The text as it is compared where case does not matter.
    QString folded(const QString& text) const { return locale_.toLower(text); }

    /// Below, equal to or above 0, as the first stands before, with or behind the second.
    virtual int compare(std::size_t first, std::size_t second, int column) const = 0;
    /// The order of records that are equal in a column, whichever way that is sorted.
    virtual int compareTied(std::size_t first, std::size_t second) const = 0;
    virtual bool matches(std::size_t record, const QString& foldedQuery) const = 0;
    /// Tells the record from every other one and is the same in the next listing.
    virtual std::string identity(std::size_t record) const = 0;
    virtual QVariant extra(std::size_t record, int column, int role) const;

private:
    void rearrange(const std::function<void()>& change);
    void arrange();

    std::span<const TableColumn> columns_;
    const LocalizationManager& loc_;
    QLocale locale_;
    std::size_t recordCount_ = 0;
    std::vector<std::size_t> shown_; ///< records in the order of the rows
    QString foldedQuery_;
    int sortColumn_ = -1; ///< below 0: in the order of the listing
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

} // namespace tarvo::ui
