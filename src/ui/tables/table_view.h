#pragma once

#include "ui/elements/app_icon_cache.h"
#include "ui/tables/record_table_model.h"
#include "ui/tables/table_header.h"

#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>
#include <vector>

namespace tarvo::ui {

/// A table over records: sorts by a click on a title or by Ctrl and the column's number, selects rows by
/// mouse and keys, copies them as lines of text with tabs. New records leave the selection with its rows and
/// the first visible row where it was.
class TableView : public QTableView {
public:
    /// The model outlives the view, as does `icons`, which may be null.
    TableView(RecordTableModel& model, AppIconCache* icons, QWidget* parent);

    /// Called with the record whose button was pressed, or for the current row by the Delete key.
    std::function<void(std::size_t record)> onButton;

    void sortBy(int column, Qt::SortOrder order);
    /// The selected rows from top to bottom as they stand there, one a line; empty without a selection.
    QString selectedText() const;
    /// Puts them on the clipboard.
    void copySelection() const;
    /// Shows the current row, or the first when there is none.
    void showCurrentOrTop();
    TableHeader& header() const { return *header_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    /// A row whose place on screen is kept, and where its top is.
    struct Anchor {
        QPersistentModelIndex index;
        int top = 0;
    };

    void observeModel();
    void titleClicked(int column);
    void rememberAnchors();
    void restoreAnchor();
    void fitColumns();
    int idealWidth(int column) const;
    bool sortByKey(const QKeyEvent& event);
    bool isButton(const QModelIndex& index) const;
    void pressButton(const QModelIndex& index);

    RecordTableModel& model_;
    TableHeader* header_;
    std::vector<Anchor> anchors_; ///< while the rows are rearranged
    std::vector<int> idealWidths_;
    bool userSized_ = false; ///< the user's own widths are left alone
    bool fits_ = false;      ///< the widths are being set by the program
};

} // namespace tarvo::ui
