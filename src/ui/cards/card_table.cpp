#include "ui/cards/card_table.h"

#include "ui/cards/backup_card.h"
#include "ui/cards/battery_card.h"
#include "ui/cards/bluetooth_card.h"
#include "ui/cards/cores_card.h"
#include "ui/cards/disk_card.h"
#include "ui/cards/gauges_card.h"
#include "ui/cards/history_card.h"
#include "ui/cards/net_processes_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/processes_card.h"
#include "ui/cards/sensors_card.h"
#include "ui/cards/update_banner.h"

#include <array>

namespace tarvo::ui {
namespace {

template <typename CardType>
QWidget* makeCard(PanelContext& context, QWidget* parent) {
    return new CardType(context, parent);
}

QWidget* makeQuickActions(PanelContext& context, QWidget* parent) {
    return context.makeQuickActionsCard ? context.makeQuickActionsCard(parent) : nullptr;
}

QWidget* makeAutomations(PanelContext& context, QWidget* parent) {
    return context.makeAutomationsCard ? context.makeAutomationsCard(parent) : nullptr;
}

bool hasUpdate(const PanelContext& context, const StatsSnapshot&) {
    return context.availableUpdate && context.availableUpdate->get().has_value();
}

bool hasBattery(const PanelContext&, const StatsSnapshot& snapshot) {
    return snapshot.battery.has_value();
}

bool hasAutomations(const PanelContext& context, const StatsSnapshot&) {
    return !context.settings.customShortcuts().empty();
}

constexpr std::array<CardRow, 14> rows{{{"", hasUpdate, makeCard<UpdateBanner>},
                                        {keys::showGauges, nullptr, makeCard<GaugesCard>},
                                        {keys::showHistory, nullptr, makeCard<HistoryCard>},
                                        {keys::showTemps, nullptr, makeCard<SensorsCard>},
                                        {keys::showDisk, nullptr, makeCard<DiskCard>},
                                        {keys::showNetwork, nullptr, makeCard<NetworkCard>},
                                        {keys::showNetProcesses, nullptr, makeCard<NetProcessesCard>},
                                        {keys::showTimeMachine, nullptr, makeCard<BackupCard>},
                                        {keys::showBattery, hasBattery, makeCard<BatteryCard>},
                                        {keys::showBluetoothBattery, nullptr, makeCard<BluetoothCard>},
                                        {keys::showCores, nullptr, makeCard<CoresCard>},
                                        {keys::showProcesses, nullptr, makeCard<ProcessesCard>},
                                        {keys::showQuickActions, nullptr, makeQuickActions},
                                        {"", hasAutomations, makeAutomations}}};

} // namespace

std::span<const CardRow> cardTable() {
    return rows;
}

} // namespace tarvo::ui
