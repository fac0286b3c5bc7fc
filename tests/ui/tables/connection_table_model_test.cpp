#include "ui/tables/connection_table_model.h"

#include "support/memory_preference_store.h"
#include "ui/style/color.h"
#include "ui/table_texts.h"

#include <QPersistentModelIndex>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

struct ConnectionTableModelTest : ::testing::Test {
    ConnectionTableModelTest() { model.setConnections(connections); }

    std::string column(int number) { return columnText(model, number); }
    int color(int row) {
        return model.data(model.index(row, ConnectionTableModel::stateColumn), cellColorRole).toInt();
    }

    MemoryPreferenceStore store;
    LocalizationManager loc{store, "cs"};
    ConnectionTableModel model{loc, QLocale::c()};
    std::vector<NetworkConnection> connections{
        {{}, "sshd", 800, "TCP", "*:22", "—", "LISTEN"},
        {{}, "firefox", 412, "TCP", "10.0.0.5:50010", "203.0.113.7:443", "ESTABLISHED"},
        {{}, "firefox", 412, "TCP", "10.0.0.5:50009", "203.0.113.7:443", "CLOSE_WAIT"},
        {{}, "Avahi", 301, "UDP", "*:5353", "—", "—"}};
};

} // namespace

TEST_F(ConnectionTableModelTest, NamesItsColumnsInTheLanguage) {
    const auto title = [&](int section) {
        return model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString().toStdString();
    };
    EXPECT_EQ(title(0) + "," + title(1) + "," + title(2) + "," + title(3) + "," + title(4),
              "Proces,Protokol,Lokální,Vzdálená,Stav");
    loc.setLanguage(AppLanguage::en);
    EXPECT_EQ(title(0) + "," + title(1) + "," + title(2) + "," + title(3) + "," + title(4),
              "Process,Protocol,Local,Remote,State");
}

TEST_F(ConnectionTableModelTest, ColoursTheStates) {
    EXPECT_EQ(color(0), static_cast<int>(ColorName::blue));
    EXPECT_EQ(color(1), static_cast<int>(ColorName::green));
    EXPECT_EQ(color(2), static_cast<int>(ColorName::orange));
    EXPECT_EQ(color(3), static_cast<int>(ColorName::gray));
}

TEST_F(ConnectionTableModelTest, SortsByEachColumnInBothDirections) {
    const std::vector<std::pair<int, std::string>> ascending{
        {ConnectionTableModel::processColumn, "*:5353,10.0.0.5:50009,10.0.0.5:50010,*:22"},
        {ConnectionTableModel::protocolColumn, "10.0.0.5:50009,10.0.0.5:50010,*:22,*:5353"},
        {ConnectionTableModel::localColumn, "*:22,*:5353,10.0.0.5:50009,10.0.0.5:50010"},
        {ConnectionTableModel::remoteColumn, "10.0.0.5:50009,10.0.0.5:50010,*:5353,*:22"},
        {ConnectionTableModel::stateColumn, "10.0.0.5:50009,10.0.0.5:50010,*:22,*:5353"}};
    for (const auto& [number, order] : ascending) {
        model.sort(number, Qt::AscendingOrder);
        EXPECT_EQ(column(ConnectionTableModel::localColumn), order) << number;
    }
    model.sort(ConnectionTableModel::localColumn, Qt::DescendingOrder);
    EXPECT_EQ(column(ConnectionTableModel::localColumn), "10.0.0.5:50010,10.0.0.5:50009,*:5353,*:22");
    model.sort(ConnectionTableModel::stateColumn, Qt::DescendingOrder);
    EXPECT_EQ(column(ConnectionTableModel::stateColumn), "—,LISTEN,ESTABLISHED,CLOSE_WAIT");
}

TEST_F(ConnectionTableModelTest, FindsProcessesAddressesAndStates) {
    model.setQuery(QStringLiteral("AVAHI"));
    EXPECT_EQ(model.rowCount(), 1);
    model.setQuery(QStringLiteral(":443"));
    EXPECT_EQ(model.rowCount(), 2);
    model.setQuery(QStringLiteral("listen"));
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(ConnectionTableModelTest, KnowsAConnectionAgainWhenItsStateHasChanged) {
    const QPersistentModelIndex held = model.index(1, 0);
    connections[1].state = "TIME_WAIT";
    std::swap(connections[0], connections[1]);
    model.setConnections(connections);
    EXPECT_EQ(held.row(), 0);
}

TEST_F(ConnectionTableModelTest, TellsEqualSocketsApart) {
    const NetworkConnection twice{{}, "nginx", 5, "TCP", "*:80", "—", "LISTEN"};
    model.setConnections({twice, twice});
    const QPersistentModelIndex first = model.index(0, 0);
    const QPersistentModelIndex second = model.index(1, 0);
    model.setConnections({connections[0], twice, twice});
    EXPECT_EQ(first.row(), 1);
    EXPECT_EQ(second.row(), 2);
}

} // namespace tarvo::ui
