#include "ui/sections/history_section.h"

#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/sections/alert_row.h"
#include "ui/style/alert_icon.h"

#include <QDateTime>
#include <QLocale>

namespace tarvo::ui {
namespace {

class AlertsCard : public Card {
public:
    AlertsCard(DetailContext& context, QWidget* parent)
        : Card(context.panel, parent), detail_(context), none_(add(new TextLabel)) {}

    void show(const StatsSnapshot&) override {
        static const std::vector<AlertLogEntry> nothing;
        const auto* entries = detail_.alerts ? detail_.alerts() : nullptr;
        if (!entries) entries = &nothing;
        none_->set(cardTitle(t({.cs = "Zatím žádná upozornění", .en = "No alerts yet"})));
        setShown(none_, entries->empty());
        resizePool(rows_, entries->size(), [this] { return add(new AlertRow(this)); });
        for (std::size_t index = 0; index < entries->size(); ++index) {
            const AlertLogEntry& entry = (*entries)[index];
            const AlertIcon icon = alertIcon(entry.title);
            rows_[index]->set(
                {std::string(icon.symbol), icon.color, entry.title, entry.body, alertDateText(entry.date)});
        }
    }

private:
    DetailContext& detail_;
    TextLabel* none_;
    std::vector<AlertRow*> rows_;
};

} // namespace

std::string alertDateText(WallTime date) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date.time_since_epoch()).count();
    return QLocale::system()
        .toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat)
        .toStdString();
}

HistorySection::HistorySection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"clock.arrow.circlepath", colors::gray, {.cs = "Historie", .en = "History"}},
                  parent) {
    add(new AlertsCard(context, this));
}

} // namespace tarvo::ui
