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

} // namespace tarvo::ui
