#include "ui/cards/history_card.h"

#include "support/painted_widget.h"
#include "ui/panel_fixture.h"
#include "ui/press.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

struct HistoryCardTest : ::testing::Test {
    HistoryCardTest() {
        for (int minute = 0; minute < 10; ++minute) {
            parts.history.push_back({WallTime{} + std::chrono::minutes(minute), 20, 50, std::nullopt});
        }
        card.show(StatsSnapshot{});
    }

    template <typename Widget>
    Widget& child() {
        for (QWidget* widget : card.findChildren<QWidget*>()) {
            if (auto* found = dynamic_cast<Widget*>(widget)) return *found;
        }
        throw std::logic_error("no such child");
    }

    PanelParts parts;
    PanelContext context = parts.context();
    HistoryCard card{context, nullptr};
};

} // namespace

TEST_F(HistoryCardTest, StartsLiveWithTheLatestValues) {
    EXPECT_EQ(card.range(), HistoryRange::live);
    parts.model->publishedCPUHistory().set({10, 20, 30});
    card.show(StatsSnapshot{});
    EXPECT_EQ(child<Sparkline>().fields().values, (std::vector<double>{10, 20, 30}));
    EXPECT_EQ(child<Sparkline>().fields().maxSamples, 60);
    EXPECT_TRUE(parts.asked.empty());
}

TEST_F(HistoryCardTest, AsksForTheHoursOfEachRange) {
    for (const char* range : {"24h", "7d", "14d"})
        buttonNamed(card, range)->click();
    EXPECT_EQ(parts.asked, (std::vector<std::string>{"history 24", "history 168", "history 336"}));
    EXPECT_EQ(child<DayHistoryChart>().fields().range, HistoryRange::twoWeeks);
    EXPECT_TRUE(child<DayHistoryChart>().isVisibleTo(&card));
    EXPECT_FALSE(child<Sparkline>().isVisibleTo(&card));
}

TEST_F(HistoryCardTest, AsksAgainOnlyForANewSample) {
    card.setRange(HistoryRange::day);
    card.show(StatsSnapshot{});
    card.show(StatsSnapshot{});
    EXPECT_EQ(parts.asked.size(), 1U);
    parts.history.push_back({WallTime{} + std::chrono::minutes(11), 20, 50, std::nullopt});
    card.show(StatsSnapshot{});
    EXPECT_EQ(parts.asked.size(), 2U);
    EXPECT_EQ(child<DayHistoryChart>().fields().samples.size(), 11U);
}

TEST_F(HistoryCardTest, KeepsNoSamplesWhileItIsLive) {
    card.setRange(HistoryRange::day);
    card.setRange(HistoryRange::live);
    EXPECT_TRUE(child<DayHistoryChart>().fields().samples.empty());
}

} // namespace tarvo::ui
