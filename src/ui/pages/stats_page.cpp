#include "ui/pages/stats_page.h"

#include "ui/cards/card.h"
#include "ui/cards/card_table.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvo::ui {

StatsPage::StatsPage(PanelContext& context, std::function<void()> onSettings, QWidget* parent)
    : QWidget(parent), context_(context), cards_(cardTable().size()), later_([this] { refresh(); }) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(std::move(onSettings)));
    column_ = new CardColumn(this);
    layout->addWidget(column_, 1);
    layout->addWidget(makeFooter());
    observe();
    refresh();
}

QWidget* StatsPage::makeHeader(std::function<void()> onSettings) {
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(metrics::large, metrics::medium, metrics::medium, metrics::regular);
    row->setSpacing(metrics::regular);
    symbol_ = new GradientSymbol(header);
    detail_ = new IconButton("arrow.up.left.and.arrow.down.right", 13, 26);
    settings_ = new IconButton("gearshape.fill", 14, 26);
    row->addWidget(symbol_);
    row->addWidget(new TextLabel({"Tarvo", TextRole::productName}), 1);
    row->addWidget(detail_);
    row->addWidget(settings_);
    detail_->setVisible(static_cast<bool>(context_.openDetailWindow));
    connect(detail_, &QAbstractButton::clicked, this, [this] { context_.openDetailWindow(); });
    connect(settings_, &QAbstractButton::clicked, this, std::move(onSettings));
    return header;
}

QWidget* StatsPage::makeFooter() {
    auto* footer = new QWidget(this);
    auto* row = new QHBoxLayout(footer);
    row->setContentsMargins(metrics::large, metrics::regular, metrics::medium, metrics::medium);
    quit_ = new LabelButton("power", colors::secondary);
    row->addWidget(new TextLabel({context_.versionText, TextRole::version, colors::secondary}), 1);
    row->addWidget(quit_);
    quit_->setVisible(static_cast<bool>(context_.quit));
    connect(quit_, &QAbstractButton::clicked, this, [this] { context_.quit(); });
    return footer;
}

void StatsPage::observe() {
    const auto ask = [this] {
        if (isVisible()) later_.ask();
    };
    subscriptions_.push_back(context_.model.publishedSnap().observeWillChange(ask));
    subscriptions_.push_back(context_.model.publishedCPUHistory().observeWillChange(ask));
    subscriptions_.push_back(context_.settings.defaults().observe(ask));
    subscriptions_.push_back(context_.loc.publishedLanguage().observeWillChange(ask));
    if (context_.availableUpdate) subscriptions_.push_back(context_.availableUpdate->observeWillChange(ask));
    if (!context_.bluetoothBattery) return;
    subscriptions_.push_back(context_.bluetoothBattery->publishedDevices().observeWillChange(ask));
}

void StatsPage::showEvent(QShowEvent* event) {
    if (context_.bluetoothBattery && context_.settings.boolean(keys::showBluetoothBattery)) {
        context_.bluetoothBattery->refresh();
    }
    refresh();
    QWidget::showEvent(event);
}

void StatsPage::refresh() {
    const LocalizationManager& loc = context_.loc;
    symbol_->set({"gauge.with.dots.needle.67percent", context_.settings.accentTheme()});
    detail_->setName(loc.t({.cs = "Otevřít detailní přehled…", .en = "Open Detail Window…"}), true);
    settings_->setName(loc.t({.cs = "Nastavení", .en = "Settings"}), true);
    quit_->setName(loc.t({.cs = "Ukončit", .en = "Quit"}));
    const StatsSnapshot& snapshot = context_.model.snap();
    for (std::size_t row = 0; row < cards_.size(); ++row)
        updateCard(row, snapshot);
}

void StatsPage::updateCard(std::size_t row, const StatsSnapshot& snapshot) {
    const CardRow& entry = cardTable()[row];
    const bool isWanted = (entry.key.empty() || context_.settings.boolean(entry.key)) &&
                          (!entry.isAvailable || entry.isAvailable(context_, snapshot));
    QWidget*& card = cards_[row];
    if (!isWanted) {
        delete card;
        card = nullptr;
        return;
    }
    const bool isNew = !card;
    if (isNew) card = entry.make(context_, this);
    if (!card) return;
    if (auto* shown = dynamic_cast<Card*>(card)) shown->show(snapshot);
    if (isNew) column_->insertCard(placeInColumn(row), card);
}

int StatsPage::placeInColumn(std::size_t row) const {
    const auto end = cards_.begin() + static_cast<std::ptrdiff_t>(row);
    return static_cast<int>(std::count_if(cards_.begin(), end, [](const QWidget* card) { return card; }));
}

QWidget* StatsPage::shownCard(std::size_t row) const {
    return cards_.at(row);
}

} // namespace tarvo::ui
