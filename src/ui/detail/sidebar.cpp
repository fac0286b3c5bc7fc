#include "ui/detail/sidebar.h"

#include "ui/controls/thin_scroll_bar.h"
#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"
#include "ui/style/theme.h"
#include "ui/style/typography.h"

#include <QPainter>
#include <QStyledItemDelegate>

namespace tarvo::ui {
namespace {

constexpr int sidebarWidth = 196;
constexpr int rowHeight = 32;
constexpr double symbolSize = 15;
constexpr double cornerRadius = 7;

class SidebarDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {sidebarWidth - 2 * metrics::regular, rowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const Theme theme(option.palette);
        const QRectF row = QRectF(option.rect).adjusted(0, 1, 0, -1);
        paintGround(*painter, theme, row, option.state);
        const auto section = static_cast<DetailSection>(index.row());
        QRectF symbol(row.left() + metrics::medium, 0, symbolSize, symbolSize);
        symbol.moveTop(row.center().y() - symbolSize / 2);
        paintSymbol(*painter, symbol, symbolName(section), theme.color(color(section)));
        painter->setPen(theme.color(colors::primary));
        const TabularText text(textFont(TextRole::heroTitle, option.font));
        const QRectF line =
            row.adjusted(symbol.right() - row.left() + metrics::medium, 0, -metrics::regular, 0);
        text.draw(*painter, line, Qt::AlignLeft, text.elided(index.data().toString(), line.width()));
        painter->restore();
    }

private:
    static void paintGround(QPainter& painter, const Theme& theme, const QRectF& row, QStyle::State state) {
        const bool isSelected = state & QStyle::State_Selected;
        const bool isUnderPointer = state & QStyle::State_MouseOver;
        if (!isSelected && !isUnderPointer) return;
        const bool hasFocus = state & QStyle::State_HasFocus;
        painter.setPen(isSelected && hasFocus ? QPen(theme.color(colors::blue), 1.5) : QPen(Qt::NoPen));
        painter.setBrush(isSelected ? theme.color(colors::blue.withOpacity(0.22))
                                    : theme.color(colors::primary.withOpacity(0.06)));
        painter.drawRoundedRect(row.adjusted(1, 0, -1, 0), cornerRadius, cornerRadius);
    }
};

} // namespace

Sidebar::Sidebar(const LocalizationManager& loc, std::function<void(DetailSection)> onSelect, QWidget* parent)
    : QListWidget(parent), loc_(loc) {
    setFrameShape(QFrame::NoFrame);
    setFixedWidth(sidebarWidth);
    setItemDelegate(new SidebarDelegate(this));
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new ThinScrollBar(this));
    setViewportMargins(metrics::regular, metrics::medium, metrics::regular, metrics::medium);
    viewport()->setAutoFillBackground(false);
    for (std::size_t row = 0; row < allDetailSections.size(); ++row)
        addItem(new QListWidgetItem);
    retranslate();
    connect(this, &QListWidget::currentRowChanged, this, [onSelect = std::move(onSelect)](int row) {
        if (row >= 0) onSelect(static_cast<DetailSection>(row));
    });
}

void Sidebar::select(DetailSection section) {
    setCurrentRow(static_cast<int>(section));
}

void Sidebar::retranslate() {
    for (const DetailSection section : allDetailSections)
        item(static_cast<int>(section))->setText(QString::fromStdString(loc_.t(label(section))));
    setAccessibleName(QString::fromStdString(loc_.t({.cs = "Sekce", .en = "Sections"})));
}

QSize Sidebar::sizeHint() const {
    return {sidebarWidth, rowHeight * count() + 2 * metrics::medium};
}

} // namespace tarvo::ui
