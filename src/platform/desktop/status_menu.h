#pragma once

#include "platform/status_bar.h"

#include <QMenu>

namespace tarvo::desktop {

/// A menu of the given rows that deletes itself once it is closed. A row is chosen by pointer, by arrow keys,
/// by its key equivalent alone or by Control with it.
class StatusMenu : public QMenu {
    Q_OBJECT

public:
    explicit StatusMenu(const Menu& menu, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tarvo::desktop
