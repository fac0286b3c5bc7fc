#include "ui/tables/process_table_model.h"

#include "support/memory_preference_store.h"
#include "ui/table_texts.h"

#include <QPersistentModelIndex>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

struct ProcessTableModelTest : ::testing::Test {
    ProcessTableModelTest() { model.setProcesses(processes); }

    std::string column(int number) { return columnText(model, number); }

    MemoryPreferenceStore store;
    LocalizationManager loc{store, "en"};
    ProcessTableModel model{loc, QLocale::c()};
    std::vector<ProcInfo> processes{
        {12, "Xorg", 5, 2}, {3, "firefox", 50.25, 12}, {400, "bash", 0, 0.04}, {7, "Firefox", 5, 30}};
};

} // namespace

TEST_F(ProcessTableModelTest, StandsInTheOrderOfTheListingAtFirst) {
    EXPECT_EQ(column(ProcessTableModel::pidColumn), "12,3,400,7");
}

TEST_F(ProcessTableModelTest, WritesPercentagesWithOneDecimal) {
    EXPECT_EQ(column(ProcessTableModel::cpuColumn), "5.0%,50.2%,0.0%,5.0%");
    EXPECT_EQ(column(ProcessTableModel::memoryColumn), "2.0%,12.0%,0.0%,30.0%");
}

TEST_F(ProcessTableModelTest, SortsByEachColumnInBothDirections) {
    const std::vector<std::pair<int, std::string>> ascending{{ProcessTableModel::nameColumn, "400,3,7,12"},
                                                             {ProcessTableModel::pidColumn, "3,7,12,400"},
                                                             {ProcessTableModel::cpuColumn, "400,7,12,3"},
                                                             {ProcessTableModel::memoryColumn, "400,12,3,7"}};
    for (const auto& [number, order] : ascending) {
        model.sort(number, Qt::AscendingOrder);
        EXPECT_EQ(column(ProcessTableModel::pidColumn), order) << number;
    }
    // Equal ones keep their order by name and number.
    const std::vector<std::pair<int, std::string>> descending{
        {ProcessTableModel::nameColumn, "12,3,7,400"},
        {ProcessTableModel::pidColumn, "400,12,7,3"},
        {ProcessTableModel::cpuColumn, "3,7,12,400"},
        {ProcessTableModel::memoryColumn, "7,3,12,400"}};
    for (const auto& [number, order] : descending) {
        model.sort(number, Qt::DescendingOrder);
        EXPECT_EQ(column(ProcessTableModel::pidColumn), order) << number;
    }
}

TEST_F(ProcessTableModelTest, DoesNotSortByTheButtons) {
    model.sort(ProcessTableModel::pidColumn, Qt::AscendingOrder);
    model.sort(ProcessTableModel::quitColumn, Qt::AscendingOrder);
    EXPECT_EQ(model.sortColumn(), ProcessTableModel::pidColumn);
}

TEST_F(ProcessTableModelTest, FindsInEitherCase) {
    model.setQuery(QStringLiteral("FIREFOX"));
    EXPECT_EQ(column(ProcessTableModel::pidColumn), "3,7");
    model.setQuery(QStringLiteral("xor"));
    EXPECT_EQ(column(ProcessTableModel::nameColumn), "Xorg");
    model.setQuery(QStringLiteral("no such process"));
    EXPECT_EQ(model.rowCount(), 0);
    model.setQuery({});
    EXPECT_EQ(model.rowCount(), 4);
}

TEST_F(ProcessTableModelTest, FindsLettersBeyondASCIIInEitherCase) {
    model.setProcesses({{1, "Žluťoučký kůň", 0, 0}});
    model.setQuery(QStringLiteral("ŽLUŤ"));
    EXPECT_EQ(model.rowCount(), 1);
    model.setQuery(QStringLiteral("KŮŇ"));
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(ProcessTableModelTest, KeepsQueryAndOrderForNewProcesses) {
    model.sort(ProcessTableModel::cpuColumn, Qt::DescendingOrder);
    model.setQuery(QStringLiteral("fox"));
    model.setProcesses({{9, "firefox", 1, 0}, {10, "Fox", 2, 0}, {11, "bash", 3, 0}});
    EXPECT_EQ(column(ProcessTableModel::pidColumn), "10,9");
}

TEST_F(ProcessTableModelTest, LeadsWhatIsHeldToTheSameProcess) {
    const QPersistentModelIndex held = model.index(1, ProcessTableModel::cpuColumn);
    const QPersistentModelIndex gone = model.index(0, 0);
    model.setProcesses({{7, "Firefox", 1, 0}, {12, "another program", 2, 0}, {3, "firefox", 3, 0}});
    EXPECT_EQ(held.row(), 2);
    EXPECT_EQ(held.column(), ProcessTableModel::cpuColumn);
    EXPECT_FALSE(gone.isValid()); // its number belongs to another process now
    model.setQuery(QStringLiteral("another"));
    EXPECT_FALSE(held.isValid());
}

TEST_F(ProcessTableModelTest, ChangesItsTitlesWithTheLanguage) {
    const auto title = [&](int section) {
        return model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString().toStdString();
    };
    EXPECT_EQ(title(0), "Name");
    EXPECT_EQ(title(3), "Mem %");
    loc.setLanguage(AppLanguage::cs);
    model.retranslate();
    EXPECT_EQ(title(0), "Název");
    EXPECT_EQ(title(1), "PID");
    EXPECT_EQ(title(2), "CPU %");
    EXPECT_EQ(title(3), "Paměť %");
}

TEST_F(ProcessTableModelTest, SortsNumbersFromTheLargestAtFirst) {
    const auto first = [&](int section) {
        return model.headerData(section, Qt::Horizontal, Qt::InitialSortOrderRole).toInt();
    };
    EXPECT_EQ(first(ProcessTableModel::nameColumn), Qt::AscendingOrder);
    EXPECT_EQ(first(ProcessTableModel::cpuColumn), Qt::DescendingOrder);
}

} // namespace tarvo::ui
