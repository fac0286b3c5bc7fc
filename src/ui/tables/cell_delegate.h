#pragma once

#include "ui/elements/app_icon_cache.h"

#include <QStyledItemDelegate>

namespace tarvo::ui {

inline constexpr int tableRowHeight = 26;

/// Draws the cells of a RecordTableModel: text with digits that do not jump, icons, symbols to press. A text
/// that is cut off is shown in full as a tool tip.
class CellDelegate : public QStyledItemDelegate {
public:
    /// `icons` may be null (then no cell has one); it outlives the delegate.
    explicit CellDelegate(AppIconCache* icons, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    QRectF textArea(const QRectF& cell, const QModelIndex& index) const;
    void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintIcon(QPainter& painter, const QRectF& cell, const QModelIndex& index, const QColor& ink) const;

    AppIconCache* icons_;
};

} // namespace tarvo::ui
