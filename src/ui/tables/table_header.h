#pragma once

#include <QHeaderView>

namespace tarvo::ui {

/// The titles of a table's columns in the looks of the cards, with an arrow on the one that sorts.
class TableHeader : public QHeaderView {
public:
    explicit TableHeader(QWidget* parent);
    /// Room that a title takes with the arrow beside it.
    int titleWidth(int section) const;
    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

} // namespace tarvo::ui
