#pragma once

#include "history/history_range.h"
#include "history/history_sample.h"
#include "localization/localization_manager.h"
#include "ui/elements/element.h"
#include "ui/geometry/time_axis.h"

#include <QLocale>
#include <QPainterPath>

#include <optional>
#include <vector>

namespace tarvo::ui {

struct DayHistoryChartFields {
    std::vector<HistorySample> samples;
    HistoryRange range = HistoryRange::day;
    bool operator==(const DayHistoryChartFields&) const = default;
};

/// Processor and memory percentages over time. Two weeks of minutes are reduced to the pixels that are there,
/// once for each size and each change, and kept for further paints.
class DayHistoryChart : public Element<DayHistoryChartFields> {
public:
    /// `loc` outlives the chart.
    explicit DayHistoryChart(LocalizationManager& loc, QWidget* parent = nullptr);
    /// For tests: another time zone and another way to write times than the system's.
    void setCalendar(UTCOffset offset, const QLocale& locale);

    /// Label of the value that stands on the time axis.
    std::string timeLabel() const;
    bool hasEnoughData() const { return fields().samples.size() > 1; }
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QSize sizeHint() const override { return {300, 140}; }
    QSize minimumSizeHint() const override { return {160, 100}; }

protected:
    void fieldsChanged() override { lines_.reset(); }
    void paintEvent(QPaintEvent* event) override;

private:
    struct Lines {
        QSizeF plotSize;
        double ratio;
        std::vector<WallTime> marks;
        std::vector<double> markPositions; ///< x within the plot
        QPainterPath cpu;
        QPainterPath mem;
    };
    QRectF plotArea() const;
    const Lines& lines(const QRectF& plot);
    QPainterPath linePathOf(const std::vector<HistorySample>& samples, double HistorySample::*reading,
                            const QSizeF& plot) const;
    void paintPlaceholder(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;
    void paintPercentages(QPainter& painter, const QRectF& plot) const;
    void paintTimes(QPainter& painter, const QRectF& plot, const Lines& lines) const;
    void paintLines(QPainter& painter, const QRectF& plot, const Lines& lines) const;

    LocalizationManager& loc_;
    Subscription languageSubscription_;
    UTCOffset offset_;
    QLocale locale_;
    std::optional<Lines> lines_;
};

} // namespace tarvo::ui
