#include "ui/pages/stats_page.h"

#include "support/painted_widget.h"
#include "ui/cards/card_table.h"
#include "ui/panel_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

#include <memory>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct StatsPageTest : ::testing::Test {
    StatsPageTest() {
        parts.publish(laptopSnapshot());
        context.makeQuickActionsCard = [](QWidget* parent) { return new QWidget(parent); };
        context.makeAutomationsCard = [](QWidget* parent) { return new QWidget(parent); };
    }

    void open() {
        page = std::make_unique<StatsPage>(context, [this] { parts.asked.push_back("settings"); });
        page->resize(360, 600);
        page->show();
        settle();
    }
    // What was asked for runs in one turn of the loop; new cards are laid out and shown in the next.
    static void settle() {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    bool shows(std::string_view key) const {
        for (std::size_t row = 0; row < cardTable().size(); ++row) {
            if (cardTable()[row].key == key && page->shownCard(row)) return true;
        }
        return false;
    }
    std::size_t shownCards() const {
        std::size_t count = 0;
        for (std::size_t row = 0; row < cardTable().size(); ++row)
            count += page->shownCard(row) ? 1U : 0U;
        return count;
    }

    PanelParts parts;
    PanelContext context = parts.context();
    std::unique_ptr<StatsPage> page;
};

} // namespace

TEST(CardTable, HasFourteenCardsInTheirOrder) {
    const std::string_view expected[] = {"",
                                         keys::showGauges,
                                         keys::showHistory,
                                         keys::showTemps,
                                         keys::showDisk,
                                         keys::showNetwork,
                                         keys::showNetProcesses,
                                         keys::showTimeMachine,
                                         keys::showBattery,
                                         keys::showBluetoothBattery,
                                         keys::showCores,
                                         keys::showProcesses,
                                         keys::showQuickActions,
                                         ""};
    ASSERT_EQ(cardTable().size(), std::size(expected));
    for (std::size_t row = 0; row < std::size(expected); ++row)
        EXPECT_EQ(cardTable()[row].key, expected[row]);
}

TEST_F(StatsPageTest, HasHeaderAndFooterAroundAnEmptyColumnWhenEverythingIsOff) {
    parts.showEverything(false);
    open();
    EXPECT_EQ(shownCards(), 0U);
    const std::string texts = shownTexts(*page);
    EXPECT_THAT(texts, HasSubstr("Tarvo"));
    EXPECT_THAT(texts, HasSubstr("Open Detail Window…"));
    EXPECT_THAT(texts, HasSubstr("Settings"));
    EXPECT_THAT(texts, HasSubstr("v1.2.3"));
    EXPECT_THAT(texts, HasSubstr("Quit"));
}

TEST_F(StatsPageTest, ShowsTheCardsOfAFreshInstallation) {
    open();
    for (const auto key :
         {keys::showGauges, keys::showHistory, keys::showTemps, keys::showDisk, keys::showNetwork,
          keys::showBattery, keys::showProcesses, keys::showQuickActions}) {
        EXPECT_TRUE(shows(key)) << key;
    }
    EXPECT_EQ(shownCards(), 8U);
}

TEST_F(StatsPageTest, EachFlagTakesItsCardAwayAndBringsItBack) {
    parts.showEverything();
    open();
    for (const CardRow& row : cardTable()) {
        if (row.key.empty()) continue;
        parts.store.set(row.key, false);
        settle();
        EXPECT_FALSE(shows(row.key)) << row.key;
        parts.store.set(row.key, true);
        settle();
        EXPECT_TRUE(shows(row.key)) << row.key;
    }
}

TEST_F(StatsPageTest, KeepsTheOrderOfCardsThatComeBack) {
    parts.showEverything();
    open();
    parts.store.set(keys::showGauges, false);
    parts.store.set(keys::showCores, false);
    settle();
    parts.store.set(keys::showCores, true);
    parts.store.set(keys::showGauges, true);
    settle();
    int lowest = -1;
    for (std::size_t row = 0; row < cardTable().size(); ++row) {
        const QWidget* card = page->shownCard(row);
        if (!card) continue;
        EXPECT_GT(card->y(), lowest) << row;
        lowest = card->y();
    }
}

TEST_F(StatsPageTest, NeverShowsTheBatteryCardWithoutABattery) {
    parts.store.set(keys::showBattery, true);
    parts.publish({});
    open();
    EXPECT_FALSE(shows(keys::showBattery));
    parts.publish(laptopSnapshot());
    settle();
    EXPECT_TRUE(shows(keys::showBattery));
}

TEST_F(StatsPageTest, ShowsTheBannerWhileThereIsANewerVersion) {
    open();
    EXPECT_EQ(page->shownCard(0), nullptr);
    parts.update.set(UpdateInfo{"2.0", "https://example.org", std::nullopt});
    settle();
    ASSERT_NE(page->shownCard(0), nullptr);
    EXPECT_THAT(shownTexts(*page), HasSubstr("New version 2.0"));
}

TEST_F(StatsPageTest, ShowsAutomationsOnlyWhenThereAreAny) {
    open();
    EXPECT_EQ(page->shownCard(13), nullptr);
    parts.store.set(keys::customShortcuts, std::vector<std::string>{"Tidy up"});
    settle();
    EXPECT_NE(page->shownCard(13), nullptr);
    parts.store.set(keys::customShortcuts, std::vector<std::string>{});
    settle();
    EXPECT_EQ(page->shownCard(13), nullptr);
}

TEST_F(StatsPageTest, FollowsTheModelAndTheLanguage) {
    open();
    StatsSnapshot next = laptopSnapshot();
    next.memPercent = 77;
    parts.publish(next);
    settle();
    EXPECT_THAT(shownTexts(*page), HasSubstr("Memory 77%"));
    parts.loc.setLanguage(AppLanguage::cs);
    settle();
    EXPECT_THAT(shownTexts(*page), HasSubstr("Paměť 77%"));
    EXPECT_THAT(shownTexts(*page), HasSubstr("Ukončit"));
}

TEST_F(StatsPageTest, DoesNothingWhileItIsHidden) {
    open();
    page->hide();
    StatsSnapshot next = laptopSnapshot();
    next.memPercent = 77;
    parts.publish(next);
    settle();
    EXPECT_THAT(shownTexts(*page), Not(HasSubstr("Memory 77%")));
    page->show();
    EXPECT_THAT(shownTexts(*page), HasSubstr("Memory 77%"));
}

TEST_F(StatsPageTest, PaintsNothingWithoutAChangedValue) {
    open();
    settle();
    const PaintCounter counter(*page);
    parts.publish(laptopSnapshot());
    settle();
    EXPECT_EQ(counter.count(), 0);
}

TEST_F(StatsPageTest, ItsButtonsDoWhatTheySay) {
    open();
    buttonNamed(*page, "Open Detail Window…")->click();
    buttonNamed(*page, "Settings")->click();
    pressKey(*buttonNamed(*page, "Quit"), Qt::Key_Return);
    EXPECT_EQ(parts.asked, (std::vector<std::string>{"detail", "settings", "quit"}));
}

TEST_F(StatsPageTest, BearsTheEmptyAndTheLargestSnapshot) {
    parts.showEverything();
    for (const StatsSnapshot& snapshot : {StatsSnapshot{}, extremeSnapshot()}) {
        parts.publish(snapshot);
        open();
        EXPECT_FALSE(isBlank(painted(*page, {360, 600})));
        EXPECT_LE(page->minimumSizeHint().width(), 360);
    }
}

} // namespace tarvo::ui
