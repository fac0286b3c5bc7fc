#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <QString>

class QPainter;

namespace tarvo::ui {

/// Text whose digits all take the same room, so that a changing number does not make its line jump. Fonts
/// with equal digits are drawn as they are; in others each digit stands in a cell of the widest one.
class TabularText {
public:
    explicit TabularText(const QFont& font);

    double width(const QString& text) const;
    /// The text, shortened with an ellipsis at its end where it is wider than `room`.
    QString elided(const QString& text, double room) const;
    /// One line; vertically the capitals are centred unless the alignment says top or bottom.
    void draw(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text) const;

    const QFont& font() const { return font_; }
    const QFontMetricsF& metrics() const { return metrics_; }
    bool paintsCells() const { return cell_ > 0; }

private:
    double baseline(const QRectF& area, Qt::Alignment alignment) const;
    void drawCells(QPainter& painter, QPointF position, const QString& text) const;

    QFont font_;
    QFontMetricsF metrics_;
    double cell_ = 0; ///< width of a digit cell, 0 when the font's digits are equal
};

} // namespace tarvo::ui
