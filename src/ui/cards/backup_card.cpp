#include "ui/cards/backup_card.h"

#include "ui/cards/card_title.h"

#include <QDateTime>
#include <QLocale>

#include <fmt/format.h>

namespace tarvo::ui {
namespace {

std::string dateText(WallTime date) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date.time_since_epoch()).count();
    return QLocale::system()
        .toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat)
        .toStdString();
}

} // namespace

BackupCard::BackupCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), state_(add(new StatRow)), missing_(add(new TextLabel)), last_(add(new StatRow)) {
    column()->setSpacing(0);
}

void BackupCard::show(const StatsSnapshot& snapshot) {
    const auto& backup = snapshot.timeMachine;
    const bool isMac = context_.family == SystemFamily::macOS;
    const std::string title = isMac ? "Time Machine" : t({.cs = "Zálohování", .en = "Backup"});
    state_->set({"clock.arrow.circlepath", colors::green, title, backup ? runningText(*backup) : "",
                 colors::secondary});
    setShown(missing_, !backup);
    missing_->set(
        cardSubtitle(isMac ? t({.cs = "Time Machine není nastavena", .en = "Time Machine isn't set up"})
                           : t({.cs = "Zálohování není nastaveno", .en = "No backup is set up"})));
    setShown(last_, backup.has_value());
    if (!backup) return;
    const bool hasDate = backup->lastBackupDate.has_value();
    last_->set({"clock.fill", colors::gray,
                hasDate ? t({.cs = "Poslední záloha", .en = "Last Backup"})
                        : t({.cs = "Zatím žádná záloha", .en = "No backup yet"}),
                hasDate ? dateText(*backup->lastBackupDate) : "", colors::primary});
}

std::string BackupCard::runningText(const TimeMachineInfo& backup) const {
    if (!backup.isRunning) return {};
    const std::string running = t({.cs = "zálohuje…", .en = "backing up…"});
    return backup.percent ? running + fmt::format(" {:.0f}%", *backup.percent) : running;
}

} // namespace tarvo::ui
