#include "platform/desktop/status_menu.h"

#include "platform/desktop/bar/x11_menu.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWindow>

namespace tarvo::desktop {

namespace {

QString withoutMnemonic(const std::string& title) {
    return QString::fromStdString(title).replace(u'&', QStringLiteral("&&"));
}

} // namespace

StatusMenu::StatusMenu(const Menu& menu, QWidget* parent) : QMenu(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuRow& row : menu) {
        if (row.title.empty()) {
            addSeparator();
            continue;
        }
        QAction* action = addAction(withoutMnemonic(row.title));
        if (!row.keyEquivalent.empty()) {
            action->setShortcut(
                QKeySequence(QStringLiteral("Ctrl+") + QString::fromStdString(row.keyEquivalent)));
            action->setShortcutVisibleInContextMenu(true);
        }
        if (row.action) connect(action, &QAction::triggered, this, row.action);
    }
}

void StatusMenu::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) declarePopupMenu(*windowHandle());
    QMenu::showEvent(event);
}

void StatusMenu::keyPressEvent(QKeyEvent* event) {
    const QKeySequence pressed(QKeyCombination(Qt::ControlModifier, static_cast<Qt::Key>(event->key())));
    for (QAction* action : actions()) {
        if (action->shortcut().isEmpty() || action->shortcut() != pressed) continue;
        close();
        action->trigger();
        return;
    }
    QMenu::keyPressEvent(event);
}

} // namespace tarvo::desktop
