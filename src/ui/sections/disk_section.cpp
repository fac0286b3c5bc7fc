#include "ui/sections/disk_section.h"

#include "readers/format_bytes_per_second.h"
#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/elements/stat_row.h"
#include "ui/elements/volume_row.h"
#include "ui/sections/reading_texts.h"

namespace tarvo::ui {
namespace {

class DiskTrafficCard : public Card {
public:
    DiskTrafficCard(PanelContext& context, QWidget* parent)
        : Card(context, parent), title_(add(new StatRow)), read_(add(new StatRow)), write_(add(new StatRow)) {
        column()->setSpacing(0);
    }

    void show(const StatsSnapshot& snapshot) override {
        title_->set({"arrow.up.arrow.down.circle.fill", colors::gray, "Disk I/O", "", colors::primary});
        read_->set({"arrow.down", colors::blue, t({.cs = "Čtení", .en = "Read"}),
                    formatBytesPerSecond(snapshot.diskReadRate), colors::primary});
        write_->set({"arrow.up", colors::orange, t({.cs = "Zápis", .en = "Write"}),
                     formatBytesPerSecond(snapshot.diskWriteRate), colors::primary});
    }

private:
    StatRow* title_;
    StatRow* read_;
    StatRow* write_;
};

class VolumesCard : public Card {
public:
    VolumesCard(PanelContext& context, const std::vector<DiskVolume>& volumes, QWidget* parent)
        : Card(context, parent), volumes_(volumes), title_(add(new TextLabel)) {}

    void show(const StatsSnapshot&) override {
        title_->set(cardTitle(t({.cs = "Svazky", .en = "Volumes"})));
        resizePool(rows_, volumes_.size(), [this] { return add(new VolumeRow(this)); });
        for (std::size_t index = 0; index < volumes_.size(); ++index) {
            const DiskVolume& volume = volumes_[index];
            const double used = volume.totalGB - volume.freeGB;
            rows_[index]->set({volume.isRemovable ? "externaldrive.fill" : "internaldrive.fill", volume.name,
                               diskText(used, volume.totalGB), volume.totalGB > 0 ? used / volume.totalGB : 0,
                               volume.isRemovable ? colors::teal : colors::indigo});
        }
    }

private:
    const std::vector<DiskVolume>& volumes_;
    TextLabel* title_;
    std::vector<VolumeRow*> rows_;
};

} // namespace

DiskSection::DiskSection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"internaldrive.fill", colors::indigo, {.cs = "Disky", .en = "Disks"}}, parent),
      loading_(
          context.volumes, [this](auto volumes) { volumes_ = std::move(volumes); },
          [this] { setLoading(loading_.isLoading()); }) {
    setReload([this] { loading_.start(); });
    add(new DiskTrafficCard(context.panel, this));
    add(new VolumesCard(context.panel, volumes_, this));
}

} // namespace tarvo::ui
