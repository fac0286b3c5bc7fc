#pragma once

#include "ui/pages/panel_context.h"
#include "ui/pages/stats_page.h"

#include <QPropertyAnimation>

namespace tarvo::ui {

class SettingsPage;

/// What opens under a status item: the stats page or, in its place, the settings page. The pages slide past
/// each other where the desktop animates.
class PopoverView : public QWidget {
public:
    explicit PopoverView(PanelContext context, QWidget* parent = nullptr);

    bool showsSettings() const { return showSettings_; }
    void setShowSettings(bool show);
    StatsPage* statsPage() const { return statsPage_; }
    SettingsPage* settingsPage() const { return settingsPage_; }

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QWidget* currentPage() const;
    void slide(QWidget* leaving, QWidget* entering, int direction);
    void layOutPages();

    PanelContext context_;
    bool showSettings_ = false;
    StatsPage* statsPage_;
    SettingsPage* settingsPage_ = nullptr;
    QPropertyAnimation* leaving_;
    QPropertyAnimation* entering_;
};

} // namespace tarvo::ui
