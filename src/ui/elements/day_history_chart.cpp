#include "ui/elements/day_history_chart.h"

#include "ui/geometry/chart_lines.h"
#include "ui/geometry/smooth_curve.h"
#include "ui/style/axis_text.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double lineWidth = 1.5;
constexpr double denseLineWidth = 1; // where many samples share a column
constexpr double legendDot = 6;
constexpr double gridOpacity = 0.1;
constexpr double roomForPoint = 3; // below this distance a curve cannot be told from straight pieces

struct Series {
    LKey name;
    Color color;
};

constexpr std::array<Series, 2> legend{
    {{{.cs = "CPU", .en = "CPU"}, colors::blue}, {{.cs = "Paměť", .en = "Memory"}, colors::purple}}};

AxisScale scaleOf(HistoryRange range) {
    switch (range) {
    case HistoryRange::week:
        return dayScale;
    case HistoryRange::twoWeeks:
        return twoDayScale;
    case HistoryRange::live:
    case HistoryRange::day:
        break;
    }
    return sixHourScale;
}

QPainterPath curvePath(const std::vector<DrawPoint>& points) {
    QPainterPath path;
    if (points.empty()) return path;
    path.moveTo(points.front().x, points.front().y);
    for (const CurvePiece& piece : smoothCurve(points)) {
        path.cubicTo(piece.control1.x, piece.control1.y, piece.control2.x, piece.control2.y, piece.end.x,
                     piece.end.y);
    }
    return path;
}

} // namespace

DayHistoryChart::DayHistoryChart(LocalizationManager& loc, QWidget* parent)
    : Element(parent), loc_(loc), offset_(systemUTCOffset()), locale_(QLocale::system()) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    languageSubscription_ = loc_.publishedLanguage().observeWillChange([this] { update(); });
}

void DayHistoryChart::setCalendar(UTCOffset offset, const QLocale& locale) {
    offset_ = std::move(offset);
    locale_ = locale;
    lines_.reset();
    update();
}

std::string DayHistoryChart::timeLabel() const {
    return loc_.t({.cs = "Čas", .en = "Time"});
}

QString DayHistoryChart::accessibleText() const {
    if (!hasEnoughData()) {
        return QString::fromStdString(loc_.t(
            {.cs = "Zatím málo dat — vrať se za chvíli", .en = "Not enough data yet — check back soon"}));
    }
    QStringList words;
    for (const Series& series : legend)
        words << QString::fromStdString(loc_.t(series.name));
    words << QString::fromStdString(timeLabel());
    return words.join(QStringLiteral(", "));
}

void DayHistoryChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!hasEnoughData()) {
        paintPlaceholder(painter);
        return;
    }
    const QRectF plot = plotArea();
    if (plot.width() < 1 || plot.height() < 1) return;
    const Lines& drawn = lines(plot);
    paintLegend(painter);
    paintPercentages(painter, plot);
    paintTimes(painter, plot, drawn);
    paintLines(painter, plot, drawn);
}

QRectF DayHistoryChart::plotArea() const {
    const TabularText axis(roleFont(TextRole::axis));
    const double legendHeight = QFontMetricsF(roleFont(TextRole::placeholder)).height();
    const double percentWidth = axis.width(QStringLiteral("100%")) + metrics::small;
    return QRectF(rect()).adjusted(0, legendHeight + metrics::small, -percentWidth,
                                   -axis.metrics().height() - metrics::hair);
}

const DayHistoryChart::Lines& DayHistoryChart::lines(const QRectF& plot) {
    if (lines_ && lines_->plotSize == plot.size() && lines_->ratio == devicePixelRatioF()) return *lines_;
    auto sorted = fields().samples;
    sortByDate(sorted);
    const ChartDomain domain = chartDomain(sorted);
    Lines made{plot.size(),
               devicePixelRatioF(),
               axisMarks(scaleOf(fields().range), domain.from, domain.to, offset_),
               {},
               linePathOf(sorted, &HistorySample::cpu, plot.size()),
               linePathOf(sorted, &HistorySample::mem, plot.size())};
    for (const WallTime mark : made.marks)
        made.markPositions.push_back(domain.position(mark) * plot.width());
    return lines_.emplace(std::move(made));
}

QPainterPath DayHistoryChart::linePathOf(const std::vector<HistorySample>& samples,
                                         double HistorySample::*reading, const QSizeF& plot) const {
    const auto points =
        chartLine(samples, reading, chartDomain(samples), {plot.width(), plot.height()}, devicePixelRatioF());
    const bool isSparse = plot.width() / static_cast<double>(points.size()) >= roomForPoint;
    return isSparse ? curvePath(points) : linePath(points);
}

void DayHistoryChart::paintPlaceholder(QPainter& painter) const {
    painter.setPen(theme().color(colors::secondary));
    const TabularText text(roleFont(TextRole::placeholder));
    text.draw(painter, rect(), Qt::AlignHCenter, text.elided(accessibleText(), width()));
}

void DayHistoryChart::paintLegend(QPainter& painter) const {
    const Theme shades = theme();
    const TabularText text(roleFont(TextRole::placeholder));
    QRectF line(0, 0, width(), text.metrics().height());
    for (const Series& series : legend) {
        const QString name = QString::fromStdString(loc_.t(series.name));
        painter.setPen(Qt::NoPen);
        painter.setBrush(shades.color(series.color));
        painter.drawEllipse(QRectF(line.left(), line.center().y() - legendDot / 2, legendDot, legendDot));
        line.setLeft(line.left() + legendDot + metrics::tight);
        painter.setPen(shades.color(colors::secondary));
        text.draw(painter, line, Qt::AlignLeft, name);
        line.setLeft(line.left() + text.width(name) + metrics::medium);
    }
}

void DayHistoryChart::paintPercentages(QPainter& painter, const QRectF& plot) const {
    const Theme shades = theme();
    const TabularText text(roleFont(TextRole::axis));
    const int step = percentStep(plot.height());
    for (int percent = 0; percent <= 100; percent += step) {
        const double y = plot.bottom() - plot.height() * percent / 100;
        painter.setPen(QPen(shades.color(colors::primary.withOpacity(gridOpacity)), 0.5));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(shades.color(colors::secondary));
        const QRectF line(plot.right(), y - 6, width() - plot.right(), 12);
        text.draw(painter, line, Qt::AlignRight, QString::number(percent) + QLatin1Char('%'));
    }
}

void DayHistoryChart::paintTimes(QPainter& painter, const QRectF& plot, const Lines& lines) const {
    const Theme shades = theme();
    const TabularText text(roleFont(TextRole::axis));
    double free = -1e9; // where the next label may begin
    for (std::size_t index = 0; index < lines.marks.size(); ++index) {
        const double x = plot.left() + lines.markPositions[index];
        painter.setPen(QPen(shades.color(colors::primary.withOpacity(gridOpacity)), 0.5));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        const QString label = axisText(scaleOf(fields().range).label, lines.marks[index], offset_, locale_);
        const double half = text.width(label) / 2;
        const double centre = std::clamp(x, half, std::max(half, width() - half));
        if (centre - half < free) continue;
        free = centre + half + metrics::tight;
        painter.setPen(shades.color(colors::secondary));
        const QRectF line(centre - half, plot.bottom() + metrics::hair, 2 * half, text.metrics().height());
        text.draw(painter, line, Qt::AlignHCenter, label);
    }
}

void DayHistoryChart::paintLines(QPainter& painter, const QRectF& plot, const Lines& lines) const {
    const Theme shades = theme();
    painter.save();
    painter.translate(plot.topLeft());
    painter.setBrush(Qt::NoBrush);
    const bool isDense = static_cast<double>(fields().samples.size()) > 4 * plot.width();
    const double pen = isDense ? denseLineWidth : lineWidth;
    const auto stroke = [&](const QPainterPath& path, Color color) {
        painter.setPen(QPen(shades.color(color), pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    };
    stroke(lines.mem, colors::purple);
    stroke(lines.cpu, colors::blue);
    painter.restore();
}

} // namespace tarvo::ui
