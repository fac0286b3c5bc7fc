#include "ui/tables/table_view.h"

#include "support/memory_preference_store.h"
#include "support/painted_widget.h"
#include "ui/press.h"
#include "ui/tables/cell_delegate.h"
#include "ui/tables/process_table_model.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

struct TableViewTest : ::testing::Test {
    TableViewTest() {
        list(200);
        view.resize(500, 300);
        view.show();
        QApplication::processEvents();
    }

    /// Processes 1 to `count`, the first with the least load.
    void list(int count, double shift = 0) {
        std::vector<ProcInfo> processes;
        for (int pid = 1; pid <= count; ++pid) {
            processes.push_back({pid, "process " + std::to_string(pid), pid + shift, 1});
        }
        model.setProcesses(processes);
    }
    std::string pidAt(int row) {
        return model.text(model.record(row), ProcessTableModel::pidColumn).toStdString();
    }
    void clickHeader(int column, QEvent::Type press = QEvent::MouseButtonPress) {
        const QPoint place(view.header().sectionViewportPosition(column) + 10, 10);
        for (const auto type : {press, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, view.header().viewport()->mapToGlobal(place), Qt::LeftButton,
                              type == press ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(view.header().viewport(), &event);
        }
    }
    void doubleClickHeader(int column) {
        clickHeader(column);
        clickHeader(column, QEvent::MouseButtonDblClick);
    }
    void click(int row, int column) {
        const QPoint place = view.visualRect(model.index(row, column)).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(view.viewport(), &event);
        }
    }

    MemoryPreferenceStore store;
    LocalizationManager loc{store, "en"};
    ProcessTableModel model{loc, QLocale::c()};
    TableView view{model, nullptr, nullptr};
};

} // namespace

TEST_F(TableViewTest, SortsByAClickOnATitleAndTurnsAtTheNext) {
    clickHeader(ProcessTableModel::cpuColumn);
    EXPECT_EQ(pidAt(0), "200");
    EXPECT_EQ(view.header().sortIndicatorSection(), ProcessTableModel::cpuColumn);
    EXPECT_EQ(view.header().sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeader(ProcessTableModel::cpuColumn);
    EXPECT_EQ(pidAt(0), "1");
    EXPECT_EQ(view.header().sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(ProcessTableModel::nameColumn);
    EXPECT_EQ(view.header().sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(model.sortColumn(), ProcessTableModel::nameColumn);
}

TEST_F(TableViewTest, TakesTwoQuickClicksOnATitleForTwo) {
    doubleClickHeader(ProcessTableModel::cpuColumn);
    EXPECT_EQ(view.header().sortIndicatorSection(), ProcessTableModel::cpuColumn);
    EXPECT_EQ(view.header().sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(pidAt(0), "1");
}

TEST_F(TableViewTest, SortsByTheNumberOfAColumn) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_2, Qt::ControlModifier);
    QApplication::sendEvent(&view, &press);
    EXPECT_EQ(model.sortColumn(), ProcessTableModel::pidColumn);
    EXPECT_EQ(pidAt(0), "200");
}

TEST_F(TableViewTest, KeepsTheSelectionWithItsProcess) {
    view.sortBy(ProcessTableModel::cpuColumn, Qt::DescendingOrder);
    view.selectRow(5);
    const std::string selected = pidAt(5);
    list(150);
    const auto rows = view.selectionModel()->selectedRows();
    EXPECT_TRUE(rows.isEmpty()); // 195 is gone
    view.selectRow(5);
    const std::string kept = pidAt(5);
    list(180);
    ASSERT_EQ(view.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(pidAt(view.selectionModel()->selectedRows().front().row()), kept);
    EXPECT_EQ(pidAt(view.currentIndex().row()), kept);
}

TEST_F(TableViewTest, StaysAtTheTopWhoeverComesIn) {
    view.sortBy(ProcessTableModel::cpuColumn, Qt::DescendingOrder);
    list(300);
    QApplication::processEvents();
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(TableViewTest, KeepsTheFirstVisibleRowInItsPlace) {
    view.sortBy(ProcessTableModel::cpuColumn, Qt::DescendingOrder);
    view.verticalScrollBar()->setValue(50 * tableRowHeight + 7);
    const std::string first = pidAt(view.rowAt(0));
    list(260);
    QApplication::processEvents();
    EXPECT_EQ(pidAt(view.rowAt(0)), first);
    EXPECT_EQ(view.rowViewportPosition(view.rowAt(0)), -7);
}

TEST_F(TableViewTest, KeepsTheCurrentRowInItsPlaceWhenItIsToBeSeen) {
    view.sortBy(ProcessTableModel::nameColumn, Qt::AscendingOrder);
    view.verticalScrollBar()->setValue(50 * tableRowHeight);
    const int row = view.rowAt(100);
    view.selectRow(row);
    const std::string current = pidAt(row);
    const int place = view.rowViewportPosition(row);
    list(320);
    QApplication::processEvents();
    EXPECT_EQ(pidAt(view.rowAt(100)), current);
    EXPECT_EQ(view.rowViewportPosition(view.currentIndex().row()), place);
}

TEST_F(TableViewTest, CopiesTheSelectedRowsInTheirOrder) {
    view.sortBy(ProcessTableModel::pidColumn, Qt::DescendingOrder);
    view.selectionModel()->select(model.index(2, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    view.selectionModel()->select(model.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(view.selectedText().toStdString(),
              "process 200\t200\t200.0%\t1.0%\nprocess 198\t198\t198.0%\t1.0%");
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QApplication::sendEvent(&view, &copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), view.selectedText());
}

TEST_F(TableViewTest, LeavesTheClipboardAloneWithoutASelection) {
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    view.copySelection();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

TEST_F(TableViewTest, PressesTheButtonOfTheRow) {
    std::vector<std::int32_t> pressed;
    view.onButton = [&](std::size_t record) { pressed.push_back(model.process(record).pid); };
    click(3, ProcessTableModel::quitColumn);
    click(4, ProcessTableModel::nameColumn);
    EXPECT_EQ(pressed, (std::vector<std::int32_t>{4}));
    pressKey(view, Qt::Key_Delete);
    EXPECT_EQ(pressed, (std::vector<std::int32_t>{4, 5}));
}

TEST_F(TableViewTest, MovesFromRowToRowByKeys) {
    view.selectRow(10);
    pressKey(view, Qt::Key_Down);
    EXPECT_EQ(view.currentIndex().row(), 11);
    pressKey(view, Qt::Key_End);
    EXPECT_EQ(view.currentIndex().row(), 199);
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    pressKey(view, Qt::Key_Home);
    EXPECT_EQ(view.currentIndex().row(), 0);
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 1);
}

TEST_F(TableViewTest, FillsItsWidthWithItsColumns) {
    for (const int width : {500, 700, 420}) {
        view.resize(width, 300);
        QApplication::processEvents();
        EXPECT_EQ(view.header().length(), view.viewport()->width()) << width;
    }
}

TEST_F(TableViewTest, LeavesTheUsersWidthsAlone) {
    view.header().resizeSection(ProcessTableModel::pidColumn, 133);
    view.resize(800, 300);
    list(10);
    EXPECT_EQ(view.header().sectionSize(ProcessTableModel::pidColumn), 133);
}

TEST_F(TableViewTest, IsEmptyForNoProcesses) {
    view.selectRow(5);
    model.setProcesses({});
    QApplication::processEvents();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(view.currentIndex().isValid());
    pressKey(view, Qt::Key_End);
    pressKey(view, Qt::Key_Delete);
    EXPECT_FALSE(isBlank(painted(view, QSize(400, 200)))); // the titles
}

} // namespace tarvo::ui
