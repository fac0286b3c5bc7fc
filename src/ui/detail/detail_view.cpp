#include "ui/detail/detail_view.h"

#include "ui/detail/overview_section.h"
#include "ui/sections/battery_section.h"
#include "ui/sections/bluetooth_section.h"
#include "ui/sections/cpu_section.h"
#include "ui/sections/detail_log.h"
#include "ui/sections/disk_section.h"
#include "ui/sections/history_section.h"
#include "ui/sections/memory_section.h"
#include "ui/sections/network_section.h"
#include "ui/sections/processes_section.h"
#include "ui/sections/sensors_section.h"
#include "ui/style/theme.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tarvo::ui {
namespace {

template <typename SectionType>
Section* makeSection(DetailContext& context, QWidget* parent) {
    return new SectionType(context, parent);
}

// In the order of the enumeration.
constexpr std::array<Section* (*)(DetailContext&, QWidget*), allDetailSections.size()> makers{
    makeSection<OverviewSection>,  makeSection<CPUSection>,     makeSection<MemorySection>,
    makeSection<BatterySection>,   makeSection<DiskSection>,    makeSection<NetworkSection>,
    makeSection<BluetoothSection>, makeSection<SensorsSection>, makeSection<ProcessesSection>,
    makeSection<HistorySection>};

} // namespace

DetailView::DetailView(DetailContext context, QWidget* parent)
    : QWidget(parent), context_(std::move(context)), later_([this] { retranslate(); }),
      sidebar_(new Sidebar(
          context_.panel.loc, [this](DetailSection section) { showSection(section); }, this)),
      pages_(new QStackedWidget(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(sidebar_);
    row->addWidget(pages_, 1);
    languageSubscription_ =
        context_.panel.loc.publishedLanguage().observeWillChange([this] { later_.ask(); });
    select(allDetailSections.front());
    sidebar_->setFocus();
}

void DetailView::retranslate() {
    sidebar_->retranslate();
    qCDebug(detailLog, "sidebar \"%s\"", qUtf8Printable(sidebar_->item(0)->text()));
}

void DetailView::showSection(DetailSection section) {
    const auto place = static_cast<std::size_t>(section);
    Section*& page = sections_[place];
    if (!page) {
        page = makers[place](context_, this);
        pages_->addWidget(page);
    }
    pages_->setCurrentWidget(page);
    const std::string_view name = identifier(section);
    qCDebug(detailLog, "section \"%.*s\"", static_cast<int>(name.size()), name.data());
}

Section* DetailView::section(DetailSection section) const {
    return sections_[static_cast<std::size_t>(section)];
}

// The sidebar stands on a shade of its own, with a line at its edge.
void DetailView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme theme(palette());
    painter.fillRect(sidebar_->geometry(), theme.color(colors::primary.withOpacity(0.045)));
    const QRectF edge(sidebar_->geometry().right(), 0, 1, height());
    painter.fillRect(edge, theme.color(colors::primary.withOpacity(0.1)));
}

} // namespace tarvo::ui
