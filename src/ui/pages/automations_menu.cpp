#include "ui/pages/automations_menu.h"

#include <QFontMetrics>

#include <utility>

namespace tarvo::ui {
namespace {

constexpr int widestName = 280;

/// A menu reads an ampersand as a mark for a key and a tab as the beginning of a shortcut.
QString itemText(const std::string& name, const QFont& font) {
    QString text = QFontMetrics(font).elidedText(QString::fromStdString(name), Qt::ElideRight, widestName);
    return text.replace(QLatin1Char('&'), QLatin1String("&&")).replace(QLatin1Char('\t'), QLatin1Char(' '));
}

} // namespace

AutomationsMenu::AutomationsMenu(std::function<void(const std::string&)> chosen, QWidget* parent)
    : QMenu(parent), chosen_(std::move(chosen)) {}

void AutomationsMenu::offer(const std::vector<std::string>& names) {
    clear();
    for (const std::string& name : names) {
        QAction* item = addAction(itemText(name, font()));
        connect(item, &QAction::triggered, this, [this, name] { chosen_(name); });
    }
}

void AutomationsMenu::explain(const std::string& text) {
    clear();
    addAction(QString::fromStdString(text))->setEnabled(false);
}

} // namespace tarvo::ui
