#include "ui/detail/overview_tiles.h"

#include "readers/format_bytes_per_second.h"
#include "ui/cards/battery_texts.h"
#include "ui/cards/card_title.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/sections/battery_words.h"
#include "ui/sections/reading_texts.h"
#include "ui/style/accent.h"
#include "ui/style/metrics.h"

#include <fmt/format.h>

#include <QGridLayout>
#include <QHBoxLayout>

namespace tarvo::ui {
namespace {

class Tile : public Card {
public:
    Tile(PanelContext& context, QWidget* parent) : Card(context, parent) {
        column()->setSpacing(0);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

protected:
    StatRow* addRow() { return add(new StatRow); }
};

class DiskTile : public Tile {
public:
    DiskTile(PanelContext& context, QWidget* parent)
        : Tile(context, parent), title_(addRow()), free_(addRow()), traffic_(addRow()) {}

    void show(const StatsSnapshot& snapshot) override {
        title_->set({"internaldrive.fill", colors::indigo, "Disk", "", colors::primary});
        free_->set({"circle.dashed", colors::gray, t({.cs = "Volno", .en = "Free"}),
                    diskText(snapshot.diskFreeGB, snapshot.diskTotalGB), colors::primary});
        traffic_->set({"arrow.up.arrow.down.circle.fill", colors::gray, "Disk I/O",
                       formatBytesPerSecond(snapshot.diskReadRate + snapshot.diskWriteRate),
                       colors::primary});
    }

private:
    StatRow* title_;
    StatRow* free_;
    StatRow* traffic_;
};

class NetworkTile : public Tile {
public:
    NetworkTile(PanelContext& context, QWidget* parent)
        : Tile(context, parent), title_(addRow()), download_(addRow()), upload_(addRow()) {}

    void show(const StatsSnapshot& snapshot) override {
        title_->set({"network", colors::teal, t({.cs = "Síť", .en = "Network"}), "", colors::primary});
        download_->set({"arrow.down.circle.fill", colors::blue, t({.cs = "Stahování", .en = "Download"}),
                        formatBytesPerSecond(snapshot.netInRate), colors::primary});
        upload_->set({"arrow.up.circle.fill", colors::green, t({.cs = "Odesílání", .en = "Upload"}),
                      formatBytesPerSecond(snapshot.netOutRate), colors::primary});
    }

private:
    StatRow* title_;
    StatRow* download_;
    StatRow* upload_;
};

class BatteryTile : public Tile {
public:
    BatteryTile(PanelContext& context, QWidget* parent)
        : Tile(context, parent), level_(addRow()), health_(addRow()) {}

    void show(const StatsSnapshot& snapshot) override {
        const auto& battery = snapshot.battery;
        level_->set({"battery.100percent", battery ? batteryColor(*battery) : colors::gray,
                     t({.cs = "Baterie", .en = "Battery"}),
                     battery ? std::to_string(battery->percentage) + "%" : std::string(unavailable),
                     colors::primary});
        health_->set({"heart.fill", colors::pink, t({.cs = "Zdraví baterie", .en = "Battery health"}),
                      optionalText(battery ? battery->healthPercent : std::nullopt, "%"), colors::primary});
    }

private:
    StatRow* level_;
    StatRow* health_;
};

class TemperatureTile : public Tile {
public:
    TemperatureTile(PanelContext& context, QWidget* parent)
        : Tile(context, parent), title_(addRow()), gpu_(addRow()) {}

    void show(const StatsSnapshot& snapshot) override {
        title_->set({"thermometer.medium", colors::orange, t({.cs = "Teplota", .en = "Temperature"}),
                     temperature(snapshot.cpuTemp), colors::primary});
        setShown(gpu_, snapshot.gpuTemp.has_value());
        gpu_->set(
            {"thermometer.medium", colors::purple, "GPU", temperature(snapshot.gpuTemp), colors::primary});
    }

private:
    StatRow* title_;
    StatRow* gpu_;
};

class PowerTile : public Tile {
public:
    PowerTile(PanelContext& context, QWidget* parent) : Tile(context, parent), power_(addRow()) {}

    void show(const StatsSnapshot& snapshot) override {
        power_->set({"square.grid.3x3.fill", colors::yellow, t({.cs = "Příkon", .en = "Power Draw"}),
                     wattText(snapshot.powerWatts), colors::primary});
    }

private:
    StatRow* power_;
};

} // namespace

HeroRow::HeroRow(PanelContext& context, QWidget* parent)
    : Card(context, parent), cpu_(new HeroStatCard), memory_(new HeroStatCard) {
    setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::regular);
    row->addWidget(cpu_);
    row->addWidget(memory_);
    column()->addLayout(row);
}

void HeroRow::show(const StatsSnapshot& snapshot) {
    const std::vector<Color> processor{colors::blue, colors::indigo};
    const std::vector<Color> store{colors::purple, colors::pink};
    cpu_->set({"cpu.fill", "CPU", ringText(snapshot.cpu),
               snapshot.cpuTemp ? temperature(snapshot.cpuTemp) : std::string(), processor,
               context_.model.cpuHistory()});
    memory_->set({"memorychip.fill", t({.cs = "Paměť", .en = "Memory"}), ringText(snapshot.memPercent),
                  memoryText(snapshot.memUsedGB, snapshot.memTotalGB), store, context_.model.memHistory()});
}

OverviewTiles::OverviewTiles(PanelContext& context, QWidget* parent)
    : Card(context, parent), tiles_{new DiskTile(context, this), new NetworkTile(context, this),
                                    new BatteryTile(context, this), new TemperatureTile(context, this),
                                    new PowerTile(context, this)} {
    setContentsMargins(0, 0, 0, 0);
    auto* grid = new QGridLayout;
    grid->setSpacing(metrics::regular);
    constexpr int columns = 6;
    // Two wide tiles above three narrow ones.
    grid->addWidget(tiles_[0], 0, 0, 1, 3);
    grid->addWidget(tiles_[1], 0, 3, 1, 3);
    grid->addWidget(tiles_[2], 1, 0, 1, 2);
    grid->addWidget(tiles_[3], 1, 2, 1, 2);
    grid->addWidget(tiles_[4], 1, 4, 1, 2);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    column()->addLayout(grid);
}

void OverviewTiles::show(const StatsSnapshot& snapshot) {
    for (Card* tile : tiles_)
        tile->show(snapshot);
}

} // namespace tarvo::ui
