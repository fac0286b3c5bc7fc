#include "ui/tables/table_header.h"

#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"
#include "ui/style/theme.h"
#include "ui/style/typography.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int headerHeight = 26;
constexpr double arrowSize = 8;

} // namespace

TableHeader::TableHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(28);
    viewport()->setAutoFillBackground(false);
    setAttribute(Qt::WA_Hover);
}

QSize TableHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), headerHeight};
}

int TableHeader::titleWidth(int section) const {
    const TabularText text(textFont(TextRole::sectionCaption, font()));
    const double title = text.width(model()->headerData(section, orientation()).toString());
    return static_cast<int>(std::ceil(title + arrowSize)) + metrics::tight + 2 * metrics::regular;
}

void TableHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const Theme theme(palette());
    painter->fillRect(QRectF(rect.left(), rect.bottom(), rect.width(), 1),
                      theme.color(colors::primary.withOpacity(0.12)));
    const bool sorts = isSortIndicatorShown() && sortIndicatorSection() == section;
    QRectF line = QRectF(rect).adjusted(metrics::regular, 0, -metrics::regular, 0);
    const auto alignment =
        Qt::Alignment(model()->headerData(section, orientation(), Qt::TextAlignmentRole).toInt());
    const TabularText text(textFont(TextRole::sectionCaption, font()));
    const double arrowRoom = sorts ? arrowSize + metrics::tight : 0.0;
    const QString title =
        text.elided(model()->headerData(section, orientation()).toString(), line.width() - arrowRoom);
    if (sorts) {
        const bool isRight = alignment & Qt::AlignRight;
        const double left = isRight ? line.right() - text.width(title) - arrowRoom
                                    : line.left() + text.width(title) + metrics::tight;
        const QRectF arrow(left, line.center().y() - arrowSize / 2, arrowSize, arrowSize);
        const bool isAscending = sortIndicatorOrder() == Qt::AscendingOrder;
        paintSymbol(*painter, arrow, isAscending ? "chevron.up" : "chevron.down", theme.color(colors::blue));
    }
    painter->setPen(theme.color(sorts ? colors::primary : colors::secondary));
    text.draw(*painter, line, alignment, title);
    painter->restore();
}

} // namespace tarvo::ui
