#include "ui/tables/table_view.h"

#include "ui/controls/thin_scroll_bar.h"
#include "ui/style/metrics.h"
#include "ui/tables/cell_delegate.h"
#include "ui/tables/column_widths.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr int leastColumn = 60;
constexpr int leastStretching = 90;
// Of many rows some are measured: the longest of them is about the longest of all.
constexpr int measuredRows = 120;

} // namespace

TableView::TableView(RecordTableModel& model, AppIconCache* icons, QWidget* parent)
    : QTableView(parent), model_(model), header_(new TableHeader(this)),
      idealWidths_(model.columns().size(), 0) {
    setHorizontalHeader(header_);
    setItemDelegate(new CellDelegate(icons, this));
    setModel(&model);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(tableRowHeight);
    verticalHeader()->setMinimumSectionSize(tableRowHeight);
    header_->setSectionResizeMode(QHeaderView::Interactive);
    header_->setSortIndicatorShown(true);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBar(new ThinScrollBar(this));
    viewport()->setAutoFillBackground(false);
    QPalette clear; // the delegate draws the selection
    clear.setColor(QPalette::Highlight, Qt::transparent);
    setPalette(clear);
    observeModel();
}

void TableView::observeModel() {
    connect(&model_, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] { rememberAnchors(); });
    connect(&model_, &QAbstractItemModel::layoutChanged, this, [this] {
        fitColumns();
        restoreAnchor();
    });
    connect(&model_, &QAbstractItemModel::headerDataChanged, this, [this] {
        std::fill(idealWidths_.begin(), idealWidths_.end(), 0);
        fitColumns();
    });
    // Two quick clicks are two clicks: the second turns the order too.
    connect(header_, &QHeaderView::sectionClicked, this, &TableView::titleClicked);
    connect(header_, &QHeaderView::sectionDoubleClicked, this, &TableView::titleClicked);
    connect(header_, &QHeaderView::sectionResized, this, [this] {
        if (!fits_) userSized_ = true;
    });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (isButton(index)) pressButton(index);
    });
}

void TableView::titleClicked(int column) {
    if (!model_.columns()[static_cast<std::size_t>(column)].sorts) return;
    const auto first = static_cast<Qt::SortOrder>(
        model_.headerData(column, Qt::Horizontal, Qt::InitialSortOrderRole).toInt());
    const auto other = first == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortBy(column, model_.sortColumn() == column && model_.sortOrder() == first ? other : first);
}

void TableView::sortBy(int column, Qt::SortOrder order) {
    header_->setSortIndicator(column, order);
    model_.sort(column, order);
    showCurrentOrTop();
}

void TableView::showCurrentOrTop() {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isSelected(current)) {
        scrollTo(current);
    } else {
        verticalScrollBar()->setValue(0);
    }
}

// Whoever looks at the top of the list goes on looking at its top. Further down the current row stays in its
// place if it is to be seen, else the first visible one that is still there.
void TableView::rememberAnchors() {
    anchors_.clear();
    if (verticalScrollBar()->value() == 0) return;
    const auto add = [this](const QModelIndex& index) {
        anchors_.push_back({QPersistentModelIndex(index), rowViewportPosition(index.row())});
    };
    const QModelIndex current = currentIndex();
    if (current.isValid() && viewport()->rect().intersects(visualRect(current))) add(current);
    const int last = rowAt(viewport()->height() - 1);
    const int end = last < 0 ? model_.rowCount() : last + 1;
    for (int row = std::max(0, rowAt(0)); row < end; ++row)
        add(model_.index(row, 0));
}

void TableView::restoreAnchor() {
    const auto found = std::find_if(anchors_.begin(), anchors_.end(),
                                    [](const Anchor& anchor) { return anchor.index.isValid(); });
    if (found != anchors_.end()) {
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(found->index.row() * tableRowHeight - found->top);
    }
    anchors_.clear();
}

int TableView::idealWidth(int column) const {
    int width = header_->titleWidth(column);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int rows = model_.rowCount();
    const int step = std::max(1, rows / measuredRows);
    for (int row = 0; row < rows; row += step)
        width = std::max(width, itemDelegate()->sizeHint(option, model_.index(row, column)).width());
    return width;
}

// Widths only grow while the table lives, so that columns do not jump from one listing to the next.
void TableView::fitColumns() {
    if (userSized_) return;
    std::vector<ColumnNeed> needs;
    for (std::size_t column = 0; column < idealWidths_.size(); ++column) {
        const TableColumn& traits = model_.columns()[column];
        idealWidths_[column] = std::max(idealWidths_[column], idealWidth(static_cast<int>(column)));
        const int least = traits.stretches ? leastStretching : leastColumn;
        needs.push_back({idealWidths_[column], std::min(least, idealWidths_[column]), traits.stretches});
    }
    const std::vector<int> widths = fittedColumns(needs, viewport()->width());
    fits_ = true;
    for (std::size_t column = 0; column < widths.size(); ++column)
        setColumnWidth(static_cast<int>(column), widths[column]);
    fits_ = false;
}

void TableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    fitColumns();
}

QString TableView::selectedText() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int column = 0; column < model_.columnCount(); ++column) {
            if (model_.columns()[static_cast<std::size_t>(column)].sorts)
                cells << model_.text(model_.record(row.row()), column);
        }
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

void TableView::copySelection() const {
    const QString text = selectedText();
    if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

bool TableView::sortByKey(const QKeyEvent& event) {
    const int column = event.key() - Qt::Key_1;
    if (event.modifiers() != Qt::ControlModifier || column < 0 || column >= model_.columnCount())
        return false;
    titleClicked(column);
    return true;
}

void TableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copySelection();
    } else if (event->key() == Qt::Key_Delete && currentIndex().isValid()) {
        pressButton(currentIndex());
    } else if (!sortByKey(*event)) {
        QTableView::keyPressEvent(event);
    }
}

// The keys move from row to row: first and last mean the table's, not the line's.
QModelIndex TableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int rows = model_.rowCount();
    const int column = std::max(0, currentIndex().column());
    if (rows > 0 && action == MoveHome) return model_.index(0, column);
    if (rows > 0 && action == MoveEnd) return model_.index(rows - 1, column);
    return QTableView::moveCursor(action, modifiers);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    const bool overButton = isButton(indexAt(event->pos()));
    viewport()->setCursor(overButton ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QTableView::mouseMoveEvent(event);
}

bool TableView::isButton(const QModelIndex& index) const {
    return index.isValid() && index.data(cellSymbolRole).isValid();
}

void TableView::pressButton(const QModelIndex& index) {
    if (onButton) onButton(model_.record(index.row()));
}

} // namespace tarvo::ui
