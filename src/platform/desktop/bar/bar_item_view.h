#pragma once

#include "platform/desktop/bar/bar_item_geometry.h"
#include "platform/desktop/bar/title_layout.h"
#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/symbols/symbol_images.h"

#include <QWidget>

namespace tarvo::desktop {

/// One status item on the bar. It lays itself out when its content changes and is painted only then.
class BarItemView : public QWidget {
    Q_OBJECT

public:
    /// All references outlive the view; the model only until forgetModel().
    BarItemView(StatusItemModel& model, BarFonts& fonts, SymbolImages& symbols, QWidget* parent);

    /// The item is gone: the view shows nothing any more.
    void forgetModel() { model_ = nullptr; }
    /// The fonts changed: earlier measures no longer hold.
    void fontsChanged();
    /// The content changed: to be laid out and painted again in this turn of the loop.
    void faceChanged();
    void toolTipChanged();
    int wantedWidth();

signals:
    /// The item needs another place on the bar.
    void widthChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void layOut();
    QSizeF imageSize() const;
    QColor foreground() const;
    void paintImage(QPainter& painter);
    void paintTitle(QPainter& painter);
    void paintSymbol(QPainter& painter, const std::string& name, const QRectF& place, const QColor& color);

    StatusItemModel* model_;
    BarFonts& fonts_;
    SymbolImages& symbols_;
    ReservedWidth reserved_;
    TitleLayout title_;
    BarItemGeometry geometry_;
    bool needsLayout_ = true;
};

} // namespace tarvo::desktop
