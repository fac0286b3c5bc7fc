#include "platform/desktop/qt_dialogs.h"

#include "platform/desktop/alert_text.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>
#include <vector>

namespace tarvo::desktop {
namespace {

using Buttons = std::vector<QAbstractButton*>;

constexpr int leastTextWidth = 280;

/// The roles put the buttons where the desktop has them: the first agrees, the last one of several declines.
QMessageBox::ButtonRole roleOf(std::size_t index, std::size_t count) {
    if (index == 0) return QMessageBox::AcceptRole;
    return index + 1 == count ? QMessageBox::RejectRole : QMessageBox::ActionRole;
}

Buttons addButtons(QMessageBox& box, const std::vector<std::string>& labels) {
    if (labels.empty()) return {box.addButton(QMessageBox::Ok)};
    Buttons buttons;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        buttons.push_back(box.addButton(QString::fromStdString(labels[index]), roleOf(index, labels.size())));
    }
    return buttons;
}

std::size_t pressedIn(const QMessageBox& box, const Buttons& buttons) {
    const auto found = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    // Dismissed by other means than a button: as Escape would.
    return found == buttons.end() ? buttons.size() - 1 : static_cast<std::size_t>(found - buttons.begin());
}

/// The message stands out, and a short explanation is not broken into a narrow column.
void arrange(QMessageBox& box) {
    if (auto* message = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        QFont font = message->font();
        font.setBold(true);
        message->setFont(font);
    }
    if (auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        text->setMinimumWidth(leastTextWidth);
    for (QAbstractButton* button : box.buttons())
        button->setIcon({});
}

Buttons fill(QMessageBox& box, const Alert& alert) {
    box.setIcon(QMessageBox::Warning);
    box.setText(alertText(QString::fromStdString(alert.message)));
    box.setInformativeText(alertText(QString::fromStdString(alert.informativeText)));
    // Names of processes and words of tools are never markup, and the box's own property is for one text
    // only.
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    Buttons buttons = addButtons(box, alert.buttons);
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.back());
    arrange(box);
    box.setWindowModality(Qt::ApplicationModal);
    return buttons;
}

} // namespace

QtDialogs::QtDialogs() = default;

QtDialogs::~QtDialogs() = default;

void QtDialogs::show(const Alert& alert, std::function<void(std::size_t)> chosen) {
    const auto place = open_.insert(open_.end(), std::make_unique<QMessageBox>());
    QMessageBox& box = **place;
    QObject::connect(&box, &QDialog::finished,
                     [this, place, buttons = fill(box, alert), chosen = std::move(chosen)] {
                         const std::size_t pressed = pressedIn(**place, buttons);
                         // The box is still sending this signal; the answer may open another.
                         const auto answer = chosen;
                         place->release()->deleteLater();
                         open_.erase(place);
                         if (answer) answer(pressed);
                     });
    box.show();
    box.raise();
    box.activateWindow();
}

} // namespace tarvo::desktop
