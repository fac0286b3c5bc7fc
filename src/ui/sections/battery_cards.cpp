#include "ui/sections/battery_cards.h"

#include "ui/cards/battery_texts.h"
#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/geometry/load_color.h"
#include "ui/sections/battery_words.h"
#include "ui/sections/reading_texts.h"

#include <fmt/format.h>

namespace tarvo::ui {
namespace {

constexpr std::int64_t shownApps = 8;

} // namespace

BatteryStateCard::BatteryStateCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), missing_(add(new TextLabel)), state_(add(new StatRow)),
      bar_(add(new CapacityBar)) {}

void BatteryStateCard::show(const StatsSnapshot& snapshot) {
    const auto& battery = snapshot.battery;
    setShown(missing_, !battery);
    setShown(state_, battery.has_value());
    setShown(bar_, battery.has_value());
    missing_->set(cardTitle(batteryMissingText(context_.loc)));
    if (!battery) return;
    const Color color = batteryColor(*battery);
    state_->set({std::string(batterySymbol(*battery)), color, sectionBatteryState(*battery, context_.loc),
                 std::to_string(battery->percentage) + "%", colors::primary});
    bar_->set({static_cast<double>(battery->percentage) / 100, color});
}

BatteryHealthCard::BatteryHealthCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), time_(add(new StatRow)), cycles_(add(new StatRow)),
      health_(add(new StatRow)), power_(add(new StatRow)) {
    column()->setSpacing(0);
}

void BatteryHealthCard::show(const StatsSnapshot& snapshot) {
    setShown(this, snapshot.battery.has_value());
    if (!snapshot.battery) return;
    const BatteryInfo& battery = *snapshot.battery;
    title_->set(cardTitle(t({.cs = "Čas a zdraví", .en = "Time & Health"})));
    const BatteryTime time = batteryTimeRow(battery, context_.loc);
    time_->set({"clock.fill", colors::blue, time.label, time.value, colors::primary});
    cycles_->set({"arrow.triangle.2.circlepath", colors::indigo,
                  t({.cs = "Počet cyklů", .en = "Cycle Count"}), optionalText(battery.cycleCount),
                  colors::primary});
    health_->set({"heart.fill", colors::pink, t({.cs = "Zdraví baterie", .en = "Battery health"}),
                  optionalText(battery.healthPercent, "%"), colors::primary});
    power_->set({"bolt.fill", colors::yellow, t({.cs = "Příkon", .en = "Power Draw"}),
                 wattText(snapshot.powerWatts), colors::primary});
}

DemandingAppsCard::DemandingAppsCard(DetailContext& context, QWidget* parent)
    : Card(context.panel, parent), detail_(context), title_(add(new TextLabel)), note_(add(new TextLabel)),
      none_(add(new TextLabel)) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true); // the note takes more lines in a narrow window
    setSizePolicy(policy);
}

std::string DemandingAppsCard::note() const {
    if (context_.family == SystemFamily::macOS) {
        return t({.cs = "Odhad podle průměrného vytížení CPU v čase — macOS neposkytuje skutečný dopad na "
                        "energii bez systémových oprávnění.",
                  .en = "Estimated from average CPU usage over time — macOS doesn't expose true energy "
                        "impact without system privileges."});
    }
    return t({.cs = "Odhad podle průměrného vytížení CPU v čase — systém neposkytuje skutečný dopad na "
                    "energii bez systémových oprávnění.",
              .en = "Estimated from average CPU usage over time — the system doesn't expose true energy "
                    "impact without system privileges."});
}

void DemandingAppsCard::show(const StatsSnapshot&) {
    title_->set(cardTitle(
        t({.cs = "Nejnáročnější aplikace (tato relace)", .en = "Most Demanding Apps (this session)"})));
    TextLabelFields noteFields = cardSubtitle(note());
    noteFields.wraps = true;
    note_->set(noteFields);
    const auto demanding =
        detail_.topDemanding ? detail_.topDemanding(shownApps) : std::vector<ProcessDemand>();
    setShown(none_, demanding.empty());
    none_->set(cardSubtitle(t({.cs = "Zatím se sbírají data (jednou za minutu)…",
                               .en = "Still collecting data (once a minute)…"})));
    resizePool(rows_, demanding.size(), [this] { return add(new LevelRow(this)); });
    for (std::size_t index = 0; index < demanding.size(); ++index) {
        const ProcessDemand& app = demanding[index];
        rows_[index]->set({app.name, fmt::format("{:.1f}%", app.averageCPU), app.averageCPU / 100,
                           loadColor(app.averageCPU)});
    }
}

} // namespace tarvo::ui
