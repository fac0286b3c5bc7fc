#include "ui/sections/module_panels.h"

#include "readers/format_bytes_per_second.h"
#include "ui/cards/battery_texts.h"
#include "ui/cards/card.h"
#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/geometry/load_color.h"
#include "ui/sections/battery_words.h"
#include "ui/sections/reading_texts.h"

#include <fmt/format.h>

namespace tarvo::ui {

CPUPanel::CPUPanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), total_(add(new StatRow)), cores_(add(new CoreLevels)), hint_(addNote()) {}

void CPUPanel::show(const StatsSnapshot& snapshot) {
    total_->set({"cpu.fill", loadColor(snapshot.cpu), t({.cs = "Celkem", .en = "Total"}),
                 percentText(snapshot.cpu), colors::primary});
    setShown(cores_, !snapshot.perCore.empty());
    cores_->set({snapshot.perCore});
    setNote(hint_,
            t({.cs = "Otevři panel pro rozpad po jádrech", .en = "Open the panel for a per-core breakdown"}));
}

MemoryPanel::MemoryPanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), share_(add(new TextLabel)), bar_(add(new CapacityBar)),
      used_(add(new StatRow)) {}

void MemoryPanel::show(const StatsSnapshot& snapshot) {
    const LKey share{.cs = "{:.0f} % obsazeno", .en = "{:.0f}% used"};
    share_->set(cardTitle(fmt::format(fmt::runtime(t(share)), snapshot.memPercent)));
    bar_->set({snapshot.memPercent / 100, loadColor(snapshot.memPercent)});
    used_->set({"memorychip.fill", colors::purple, t({.cs = "Využito", .en = "Used"}),
                memoryText(snapshot.memUsedGB, snapshot.memTotalGB), colors::primary});
}

BatteryPanel::BatteryPanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), missing_(add(new TextLabel)), state_(add(new StatRow)),
      time_(add(new StatRow)), cycles_(add(new StatRow)), health_(add(new StatRow)), note_(addNote()) {}

void BatteryPanel::show(const StatsSnapshot& snapshot) {
    const bool isThere = snapshot.battery.has_value();
    setShown(missing_, !isThere);
    for (QWidget* line :
         {static_cast<QWidget*>(state_), static_cast<QWidget*>(time_), static_cast<QWidget*>(cycles_),
          static_cast<QWidget*>(health_), static_cast<QWidget*>(note_)}) {
        setShown(line, isThere);
    }
    missing_->set(cardTitle(batteryMissingText(context_.loc)));
    if (!isThere) return;
    const BatteryInfo& battery = *snapshot.battery;
    state_->set({std::string(batterySymbol(battery)), batteryColor(battery),
                 panelBatteryState(battery, context_.loc), std::to_string(battery.percentage) + "%",
                 colors::primary});
    const BatteryTime time = batteryTimeRow(battery, context_.loc);
    time_->set({"clock.fill", colors::blue, time.label, time.value, colors::primary});
    cycles_->set({"arrow.triangle.2.circlepath", colors::indigo,
                  t({.cs = "Cyklů nabití", .en = "Charge cycles"}), optionalText(battery.cycleCount),
                  colors::primary});
    health_->set({"heart.fill", colors::pink, t({.cs = "Zdraví baterie", .en = "Battery health"}),
                  optionalText(battery.healthPercent, "%"), colors::primary});
    setNote(note_, chargeLimitNote(context_.family, context_.loc));
}

TemperaturePanel::TemperaturePanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), cpu_(add(new StatRow)), gpu_(add(new StatRow)), power_(add(new StatRow)),
      passive_(add(new TextLabel)) {}

void TemperaturePanel::show(const StatsSnapshot& snapshot) {
    cpu_->set({"thermometer.medium", colors::orange, "CPU", temperature(snapshot.cpuTemp), colors::primary});
    setShown(gpu_, snapshot.gpuTemp.has_value());
    gpu_->set({"thermometer.medium", colors::purple, "GPU", temperature(snapshot.gpuTemp), colors::primary});
    power_->set({"bolt.fill", colors::yellow, t({.cs = "Příkon", .en = "Power Draw"}),
                 wattText(snapshot.powerWatts), colors::primary});
    setShown(passive_, !snapshot.hasFan);
    passive_->set(
        cardSubtitle(t({.cs = "Pasivní chlazení (bez ventilátoru)", .en = "Passive cooling (no fan)"})));
    const std::size_t count = snapshot.hasFan ? snapshot.fanRPMs.size() : 0;
    resizePool(fans_, count, [this] { return add(new StatRow(this)); });
    for (std::size_t index = 0; index < count; ++index) {
        fans_[index]->set({"fan.fill", colors::teal, fanName(index, context_.loc),
                           fanSpeedText(snapshot.fanRPMs[index]), colors::primary});
    }
}

DiskPanel::DiskPanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), free_(add(new StatRow)), read_(add(new StatRow)),
      write_(add(new StatRow)) {}

void DiskPanel::show(const StatsSnapshot& snapshot) {
    free_->set({"internaldrive.fill", colors::indigo, t({.cs = "Volno", .en = "Free"}),
                diskText(snapshot.diskFreeGB, snapshot.diskTotalGB), colors::primary});
    read_->set({"arrow.down", colors::blue, t({.cs = "Čtení", .en = "Read"}),
                formatBytesPerSecond(snapshot.diskReadRate), colors::primary});
    write_->set({"arrow.up", colors::orange, t({.cs = "Zápis", .en = "Write"}),
                 formatBytesPerSecond(snapshot.diskWriteRate), colors::primary});
}

NetworkPanel::NetworkPanel(PanelContext& context, QWidget* parent)
    : ModulePanel(context, parent), download_(add(new StatRow)), upload_(add(new StatRow)),
      total_(add(new StatRow)), localIP_(add(new StatRow)) {}

void NetworkPanel::show(const StatsSnapshot& snapshot) {
    download_->set({"arrow.down.circle.fill", colors::blue, t({.cs = "Stahování", .en = "Download"}),
                    formatBytesPerSecond(snapshot.netInRate), colors::primary});
    upload_->set({"arrow.up.circle.fill", colors::green, t({.cs = "Odesílání", .en = "Upload"}),
                  formatBytesPerSecond(snapshot.netOutRate), colors::primary});
    total_->set({"arrow.up.arrow.down.circle.fill", colors::gray, t({.cs = "Celkem", .en = "Total"}),
                 gigabytes(snapshot.totalNetIn + snapshot.totalNetOut), colors::primary});
    localIP_->set({"house.fill", colors::indigo, t({.cs = "Lokální IP", .en = "Local IP"}),
                   snapshot.localIP.value_or(std::string(unavailable)), colors::primary});
}

} // namespace tarvo::ui
