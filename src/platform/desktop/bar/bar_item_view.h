#pragma once

#include "platform/desktop/bar/item_face.h"
#include "platform/desktop/status_bar_host.h"

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
    /// The content changed: to be laid out and painted again in this turn of the loop.
    void faceChanged();
    void toolTipChanged();
    /// To be called before the fonts end that the view was laid out with.
    void forgetFonts();
    int wantedWidth();
    /// Null once the item is gone.
    const StatusItemContent* content() const { return model_ ? &model_->content() : nullptr; }
    /// The user clicked, by whatever means.
    void click(StatusClick click);

signals:
    /// The item needs another place on the bar.
    void widthChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void layOutIfNeeded();
    void tellAssistivePrograms();

    StatusItemModel* model_;
    ItemFace face_;
    bool needsLayout_ = true;
};

} // namespace tarvo::desktop
