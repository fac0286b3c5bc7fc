#include "ui/detail/detail_view.h"

#include "support/painted_widget.h"
#include "ui/detail/overview_section.h"
#include "ui/detail_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <QScrollArea>

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct DetailViewTest : ::testing::Test {
    DetailViewTest() {
        parts.publish(laptopSnapshot());
        view = std::make_unique<DetailView>(parts.detail());
        view->resize(980, 640);
        view->show();
        settle();
    }

    void settle() {
        parts.dispatcher.runAll();
        QApplication::processEvents();
    }
    std::string sidebarTexts() {
        QStringList texts;
        for (int row = 0; row < view->sidebar().count(); ++row)
            texts << view->sidebar().item(row)->text();
        return texts.join(QLatin1Char(' ')).toStdString();
    }

    DetailParts parts;
    std::unique_ptr<DetailView> view;
};

} // namespace

TEST_F(DetailViewTest, StartsWithTheOverview) {
    EXPECT_EQ(view->selection(), DetailSection::overview);
    EXPECT_NE(view->section(DetailSection::overview), nullptr);
    EXPECT_EQ(view->section(DetailSection::processes), nullptr); // made when it is first wanted
    EXPECT_EQ(parts.loads, 0);
}

TEST_F(DetailViewTest, ShowsEachSectionThatIsSelected) {
    for (const DetailSection section : allDetailSections) {
        view->select(section);
        settle();
        ASSERT_NE(view->section(section), nullptr);
        EXPECT_TRUE(view->section(section)->isVisible());
        for (const DetailSection other : allDetailSections) {
            const Section* page = view->section(other);
            EXPECT_EQ(page && page->isVisible(), other == section);
        }
    }
}

TEST_F(DetailViewTest, WalksThroughTheSectionsByKeys) {
    for (std::size_t index = 1; index < allDetailSections.size(); ++index) {
        pressKey(view->sidebar(), Qt::Key_Down);
        EXPECT_EQ(view->selection(), allDetailSections[index]);
    }
    pressKey(view->sidebar(), Qt::Key_Down);
    EXPECT_EQ(view->selection(), DetailSection::history);
    pressKey(view->sidebar(), Qt::Key_Home);
    EXPECT_EQ(view->selection(), DetailSection::overview);
}

TEST_F(DetailViewTest, SwitchingTheLanguageNamesTheSidebarAnewAtOnce) {
    EXPECT_EQ(sidebarTexts(),
              "Overview CPU Memory Battery Disks Network Bluetooth Sensors Processes History");
    parts.loc.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    EXPECT_EQ(sidebarTexts(), "Přehled CPU Paměť Baterie Disky Síť Bluetooth Senzory Procesy Historie");
    EXPECT_THAT(shownTexts(*view), HasSubstr("Přehled"));
}

TEST_F(DetailViewTest, ASectionThatIsComeBackToLoadsAnew) {
    view->select(DetailSection::disk);
    settle();
    view->select(DetailSection::cpu);
    parts.volumes.pop_back();
    view->select(DetailSection::disk);
    settle();
    EXPECT_THAT(shownTexts(*view), Not(HasSubstr("Stick")));
    EXPECT_EQ(parts.loads, 2);
}

TEST_F(DetailViewTest, ClosingWhileEverySectionLoadsPublishesNothing) {
    for (const DetailSection section : allDetailSections)
        view->select(section);
    view.reset();
    settle();
    EXPECT_EQ(parts.loads, 5); // read, but shown nowhere
}

TEST_F(DetailViewTest, OverviewHasEveryReading) {
    const std::string texts = shownTexts(*view);
    EXPECT_THAT(texts, HasSubstr("CPU 23%, 64 °C\nMemory 61%, 9.8 / 16 GB"));
    EXPECT_THAT(texts, HasSubstr("History Graph\n24h\n7d\n14d"));
    EXPECT_THAT(texts, HasSubstr("Disk\nFree 412 / 994 GB\nDisk I/O 1.5 MB/s"));
    EXPECT_THAT(texts, HasSubstr("Network\nDownload 2.3 MB/s\nUpload 85.9 KB/s"));
    EXPECT_THAT(texts, HasSubstr("Battery 68%\nBattery health 91%"));
    EXPECT_THAT(texts, HasSubstr("Temperature 64 °C\nGPU 51 °C\nPower Draw 18.4 W"));
    parts.loc.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    const std::string czech = shownTexts(*view);
    EXPECT_THAT(czech, HasSubstr("Graf historie"));
    EXPECT_THAT(czech, HasSubstr("Volno 412 / 994 GB"));
    EXPECT_THAT(czech, HasSubstr("Síť\nStahování 2.3 MB/s\nOdesílání 85.9 KB/s"));
    EXPECT_THAT(czech, HasSubstr("Teplota 64 °C"));
    EXPECT_THAT(czech, HasSubstr("Příkon 18.4 W"));
}

TEST_F(DetailViewTest, OverviewOfABareMachineHasDashes) {
    parts.publish(StatsSnapshot{});
    QApplication::processEvents();
    const std::string texts = shownTexts(*view);
    EXPECT_THAT(texts, HasSubstr("Free —"));
    EXPECT_THAT(texts, HasSubstr("Battery —\nBattery health —"));
    EXPECT_THAT(texts, HasSubstr("Temperature —"));
    EXPECT_THAT(texts, HasSubstr("Power Draw —"));
    EXPECT_THAT(texts, Not(HasSubstr("GPU")));
}

TEST_F(DetailViewTest, OverviewAsksForTheHoursOfEachRange) {
    parts.asked.clear();
    for (const char* range : {"7d", "14d", "24h"})
        buttonNamed(*view, range)->click();
    EXPECT_EQ(parts.asked, (std::vector<std::string>{"history 168", "history 336", "history 24"}));
    auto& overview = dynamic_cast<OverviewSection&>(*view->section(DetailSection::overview));
    EXPECT_EQ(overview.historyRange(), HistoryRange::day);
}

TEST_F(DetailViewTest, FitsIntoTheSmallestWindow) {
    EXPECT_LE(view->minimumSizeHint().width(), 760);
    EXPECT_LE(view->minimumSizeHint().height(), 480);
    parts.publish(extremeSnapshot());
    for (const DetailSection section : allDetailSections) {
        view->select(section);
        settle();
        EXPECT_LE(view->minimumSizeHint().width(), 760) << identifier(section);
        EXPECT_LE(view->minimumSizeHint().height(), 480) << identifier(section);
    }
}

TEST_F(DetailViewTest, OverviewFitsIntoTheWindowAsItOpens) {
    settle();
    const auto* column = view->section(DetailSection::overview)->findChild<QScrollArea*>();
    ASSERT_NE(column, nullptr);
    EXPECT_LE(column->widget()->sizeHint().height(), column->viewport()->height());
}

TEST_F(DetailViewTest, FollowsADesktopThatTurnsDark) {
    const QImage light = painted(*view, QSize(980, 640), 1, Qt::white);
    view->setPalette(darkPalette());
    QApplication::processEvents();
    const QImage dark = painted(*view, QSize(980, 640), 1, darkPalette().color(QPalette::Window));
    EXPECT_LT(qGray(dark.pixel(800, 500)), qGray(light.pixel(800, 500)));
}

} // namespace tarvo::ui
