#include "ui/cards/disk_card.h"

#include "readers/format_bytes_per_second.h"

#include <fmt/format.h>

namespace tarvo::ui {

DiskCard::DiskCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), space_(add(new StatRow)), bar_(add(new CapacityBar)),
      traffic_(add(new StatRow)) {}

void DiskCard::show(const StatsSnapshot& snapshot) {
    space_->set({"internaldrive.fill", colors::indigo, "Disk", spaceText(snapshot), colors::primary});
    const double total = snapshot.diskTotalGB.value_or(0);
    const bool isKnown = snapshot.diskFreeGB && total > 0;
    setShown(bar_, isKnown);
    if (isKnown) bar_->set({1 - *snapshot.diskFreeGB / total, colors::indigo});
    const LKey traffic{.cs = "Č {} · Z {}", .en = "R {} · W {}"};
    traffic_->set({"arrow.up.arrow.down.circle.fill", colors::gray, "Disk I/O",
                   fmt::format(fmt::runtime(t(traffic)), formatBytesPerSecond(snapshot.diskReadRate),
                               formatBytesPerSecond(snapshot.diskWriteRate)),
                   colors::primary});
}

std::string DiskCard::spaceText(const StatsSnapshot& snapshot) const {
    if (!snapshot.diskFreeGB || !snapshot.diskTotalGB) return std::string(unavailable);
    const LKey space{.cs = "{:.0f} GB volno z {:.0f} GB", .en = "{:.0f} GB free of {:.0f} GB"};
    return fmt::format(fmt::runtime(t(space)), *snapshot.diskFreeGB, *snapshot.diskTotalGB);
}

} // namespace tarvo::ui
