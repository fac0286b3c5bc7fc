#include "ui/elements/day_history_chart.h"

#include "support/memory_preference_store.h"
#include "support/painted_widget.h"
#include "ui/style/theme.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{320, 140};
constexpr WallTime start = WallTime{} + std::chrono::hours(490'000);

std::vector<HistorySample> minutesOf(int count, double cpu, double mem) {
    std::vector<HistorySample> samples;
    for (int minute = 0; minute < count; ++minute) {
        samples.push_back({start + std::chrono::minutes(minute), cpu, mem, {}});
    }
    return samples;
}

class DayHistoryChartTest : public ::testing::Test {
protected:
    DayHistoryChartTest() {
        chart_.setPalette(lightPalette());
        chart_.setCalendar([](WallTime) { return std::chrono::seconds(0); }, QLocale(QLocale::Czech));
    }

    QImage picture() { return painted(chart_, size); }

    // Number of pixels of a row that have about the hue of the colour.
    static int pixelsOf(const QImage& image, int y, Color color) {
        const int hue = Theme(lightPalette()).color(color).hslHue();
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.alpha() > 120 && std::abs(pixel.hslHue() - hue) < 8 && pixel.hslSaturation() > 60
                         ? 1
                         : 0;
        }
        return count;
    }

    static int rowsWith(const QImage& image, Color color, int least) {
        int rows = 0;
        for (int y = 20; y < image.height(); ++y)
            rows += pixelsOf(image, y, color) >= least ? 1 : 0;
        return rows;
    }

    MemoryPreferenceStore store_;
    LocalizationManager loc_{store_, "en"};
    DayHistoryChart chart_{loc_};
};

} // namespace

TEST_F(DayHistoryChartTest, SaysThatOneSampleIsNotEnough) {
    for (const int count : {0, 1}) {
        chart_.set({minutesOf(count, 30, 60), HistoryRange::day});
        EXPECT_FALSE(chart_.hasEnoughData());
        EXPECT_EQ(chart_.accessibleText().toStdString(), "Not enough data yet — check back soon");
    }
    EXPECT_FALSE(isBlank(picture()));
    loc_.setLanguage(AppLanguage::cs);
    EXPECT_EQ(chart_.accessibleText().toStdString(), "Zatím málo dat — vrať se za chvíli");
}

TEST_F(DayHistoryChartTest, DrawsALineForEachReading) {
    chart_.set({minutesOf(120, 25, 75), HistoryRange::day});
    const QImage image = picture();
    EXPECT_GE(rowsWith(image, colors::blue, 250), 1);
    EXPECT_GE(rowsWith(image, colors::purple, 250), 1);
}

TEST_F(DayHistoryChartTest, ShowsASingleBusyMinuteOfTwoWeeks) {
    auto samples = minutesOf(20160, 5, 60);
    samples[9000].cpu = 100;
    chart_.set({samples, HistoryRange::twoWeeks});
    const QImage image = picture();
    int rows = 0;
    for (int y = 24; y < 60; ++y)
        rows += pixelsOf(image, y, colors::blue) > 0 ? 1 : 0;
    EXPECT_GE(rows, 30);
}

TEST_F(DayHistoryChartTest, BearsSamplesOfOneMomentAndOfNoOrder) {
    auto samples = minutesOf(3, 40, 50);
    samples[1].date = samples[0].date;
    samples[2].date = samples[0].date;
    chart_.set({samples, HistoryRange::live});
    EXPECT_FALSE(isBlank(picture()));
    samples[2].date -= std::chrono::hours(500);
    chart_.set({samples, HistoryRange::twoWeeks});
    EXPECT_FALSE(isBlank(picture()));
}

TEST_F(DayHistoryChartTest, BearsHardlyAnyRoom) {
    chart_.set({minutesOf(50, 40, 50), HistoryRange::day});
    EXPECT_NO_FATAL_FAILURE(painted(chart_, {20, 10}));
}

TEST_F(DayHistoryChartTest, FollowsChangedSamplesAndSizes) {
    chart_.set({minutesOf(120, 25, 75), HistoryRange::day});
    const QImage before = picture();
    EXPECT_EQ(before, picture());
    chart_.set({minutesOf(120, 80, 75), HistoryRange::day});
    EXPECT_NE(before, picture());
    chart_.set({minutesOf(120, 25, 75), HistoryRange::day});
    painted(chart_, {200, 110});
    EXPECT_EQ(before, picture());
}

TEST_F(DayHistoryChartTest, NamesItsTimeAxisInBothLanguages) {
    EXPECT_EQ(chart_.timeLabel(), "Time");
    loc_.setLanguage(AppLanguage::cs);
    EXPECT_EQ(chart_.timeLabel(), "Čas");
}

TEST_F(DayHistoryChartTest, IsPaintedAgainInTheOtherLanguage) {
    chart_.set({minutesOf(120, 25, 75), HistoryRange::day});
    chart_.show();
    QApplication::processEvents();
    const PaintCounter counter(chart_);
    loc_.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    EXPECT_EQ(counter.count(), 1);
}

} // namespace tarvo::ui
