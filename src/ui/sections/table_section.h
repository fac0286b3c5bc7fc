#pragma once

#include "ui/sections/section.h"
#include "ui/tables/record_table_model.h"
#include "ui/tables/search_field.h"
#include "ui/tables/table_view.h"

#include <optional>

namespace tarvo::ui {

/// A section that is one table with a line to search it. Ctrl+F leads to that line, from which the down arrow
/// leads into the table; F5 lists anew.
class TableSection : public Section {
public:
    /// The model outlives the section's content.
    TableSection(DetailContext& context, const SectionTitle& title, RecordTableModel& model, QWidget* parent);

    SearchField& search() const { return *search_; }
    TableView& table() const { return *table_; }

protected:
    void setTexts(const LKey& prompt, const LKey& tableName);
    void refresh() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void setQuery(const QString& query);
    void logTable() const;

    RecordTableModel& model_;
    LKey prompt_;
    LKey tableName_;
    std::optional<AppLanguage> shownLanguage_;
    SearchField* search_;
    TableView* table_;
};

} // namespace tarvo::ui
