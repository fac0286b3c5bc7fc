#pragma once

#include "ui/tables/record_table_model.h"

#include <string>

namespace tarvo::ui {

/// A column from top to bottom, with commas.
inline std::string columnText(const RecordTableModel& model, int column) {
    QStringList cells;
    for (int row = 0; row < model.rowCount(); ++row)
        cells << model.text(model.record(row), column);
    return cells.join(QLatin1Char(',')).toStdString();
}

/// Titles and rows as they are shown, one a line, with bars between the cells. Columns of buttons are left
/// out.
inline std::string tableText(const QAbstractItemModel& model) {
    QStringList lines;
    for (int row = -1; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString title = model.headerData(column, Qt::Horizontal).toString();
            if (!title.isEmpty()) cells << (row < 0 ? title : model.index(row, column).data().toString());
        }
        lines << cells.join(QStringLiteral(" | "));
    }
    return lines.join(QLatin1Char('\n')).toStdString() + "\n";
}

} // namespace tarvo::ui
