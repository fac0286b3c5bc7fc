#include "ui/geometry/chart_lines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvo::ui {
namespace {

using std::chrono::minutes;

constexpr WallTime start = WallTime{} + std::chrono::hours(490'000);

HistorySample sample(int minute, double cpu, double mem = 50) {
    return {start + minutes(minute), cpu, mem, {}};
}

} // namespace

TEST(ChartDomain, RunsFromTheFirstToTheLastSampleInTime) {
    const std::vector<HistorySample> samples{sample(5, 1), sample(90, 2), sample(60, 3)};
    const ChartDomain domain = chartDomain(samples);
    EXPECT_EQ(domain.from, start + minutes(5));
    EXPECT_EQ(domain.to, start + minutes(90));
}

TEST(ChartDomain, IsAtLeastAMinuteLong) {
    const std::vector<HistorySample> samples{sample(7, 1), sample(7, 2)};
    const ChartDomain domain = chartDomain(samples);
    EXPECT_EQ(domain.to - domain.from, minutes(1));
    EXPECT_DOUBLE_EQ(domain.position(start + minutes(7)), 1);
}

TEST(ChartLine, StandsOnAFixedScaleOfPercentages) {
    const std::vector<HistorySample> samples{sample(0, 0, 100), sample(1, 50, 25), sample(2, 130, -4)};
    const auto cpu = chartLine(samples, &HistorySample::cpu, chartDomain(samples), {100, 40}, 1);
    const std::vector<DrawPoint> expected{{0, 40}, {50, 20}, {100, 0}};
    EXPECT_EQ(cpu, expected);
    const auto mem = chartLine(samples, &HistorySample::mem, chartDomain(samples), {100, 40}, 1);
    const std::vector<DrawPoint> expectedMem{{0, 0}, {50, 30}, {100, 40}};
    EXPECT_EQ(mem, expectedMem);
}

TEST(ChartLine, KeepsThePeaksOfTwoWeeksInAFewPoints) {
    std::vector<HistorySample> samples;
    for (int minute = 0; minute < 20160; ++minute)
        samples.push_back(sample(minute, minute == 12345 ? 100 : 3));
    const auto line = chartLine(samples, &HistorySample::cpu, chartDomain(samples), {300, 100}, 2);
    EXPECT_LE(line.size(), 4U * 601);
    const auto peak = std::min_element(line.begin(), line.end(),
                                       [](DrawPoint first, DrawPoint second) { return first.y < second.y; });
    EXPECT_DOUBLE_EQ(peak->y, 0);
    EXPECT_NEAR(peak->x, 300.0 * 12345 / 20159, 0.01);
}

TEST(SortByDate, PutsSamplesInOrderAfterTheClockWasSetBack) {
    std::vector<HistorySample> samples{sample(10, 1), sample(20, 2), sample(5, 3), sample(6, 4)};
    sortByDate(samples);
    EXPECT_EQ(samples.front().date, start + minutes(5));
    EXPECT_EQ(samples.back().date, start + minutes(20));
}

} // namespace tarvo::ui
