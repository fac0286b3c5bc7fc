#include "ui/cards/gauges_card.h"

#include "ui/style/metrics.h"

#include <QHBoxLayout>

#include <fmt/format.h>

namespace tarvo::ui {

GaugesCard::GaugesCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), cpu_(new RingGauge), memory_(new RingGauge), gpu_(new RingGauge) {
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::regular);
    for (RingGauge* ring : {cpu_, memory_, gpu_})
        row->addWidget(ring);
    column()->addLayout(row);
}

void GaugesCard::show(const StatsSnapshot& snapshot) {
    cpu_->set({"CPU", snapshot.cpu, temperature(snapshot.cpuTemp)});
    memory_->set({t({.cs = "Paměť", .en = "Memory"}), snapshot.memPercent,
                  fmt::format("{:.1f} / {:.0f} GB", snapshot.memUsedGB, snapshot.memTotalGB)});
    gpu_->set({"GPU", snapshot.gpuUtil.value_or(0), temperature(snapshot.gpuTemp)});
}

} // namespace tarvo::ui
