// Draws every element of the interface in both palettes and at both scales, for people to look at.
// Usage: tarvo-gallery <folder>
#include "support/memory_preference_store.h"
#include "support/painted_widget.h"
#include "support/recording_process_control.h"
#include "support/scripted_automations.h"
#include "support/scripted_desktop_actions.h"
#include "support/scripted_dialogs.h"
#include "ui/cards/automations_card.h"
#include "ui/cards/quick_actions_card.h"
#include "ui/elements/badge.h"
#include "ui/elements/capacity_bar.h"
#include "ui/elements/card_background.h"
#include "ui/elements/day_history_chart.h"
#include "ui/elements/hero_stat_card.h"
#include "ui/elements/process_icon_view.h"
#include "ui/elements/ring_gauge.h"
#include "ui/elements/section_header.h"
#include "ui/elements/sparkline.h"
#include "ui/elements/stat_row.h"
#include "ui/elements/temp_bar.h"
#include "ui/elements/text_label.h"
#include "ui/pages/automations_settings_card.h"
#include "ui/pages/popover_view.h"
#include "ui/panel_fixture.h"
#include "ui/style/accent.h"
#include "ui/style/metrics.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

namespace tarvo::ui {
namespace {

std::vector<double> wave(int count, double middle, double swing) {
    std::vector<double> values;
    for (int index = 0; index < count; ++index) {
        values.push_back(middle + swing * std::sin(index / 4.0) + swing / 2 * std::sin(index * 1.7));
    }
    return values;
}

QVBoxLayout* column(QWidget* parent) {
    auto* layout = new QVBoxLayout(parent);
    layout->setSpacing(metrics::regular);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QWidget* rings(QWidget* parent) {
    auto* card = new CardBackground(parent);
    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new RingGauge({"CPU", 0, "45 °C"}));
    row->addWidget(new RingGauge({"Paměť", 60, "9.6 / 16 GB"}));
    row->addWidget(new RingGauge({"GPU", 85, "71 °C"}));
    row->addWidget(new RingGauge({"CPU", 150, "a detail that is too long"}));
    return card;
}

QWidget* lines(QWidget* parent) {
    auto* card = new CardBackground(parent);
    auto* layout = column(card);
    layout->addWidget(new Sparkline({wave(60, 45, 30), 60, colors::blue}));
    layout->addWidget(new Sparkline({wave(20, 62, 3), 60, colors::purple}));
    layout->addWidget(new CapacityBar({0, colors::indigo}));
    layout->addWidget(new CapacityBar({0.64, colors::indigo}));
    for (const double celsius : {30.0, 45.0, 60.0, 75.0, 90.0})
        layout->addWidget(new TempBar({celsius, 20, 100}));
    return card;
}

QWidget* rows(QWidget* parent) {
    auto* card = new CardBackground(parent);
    auto* layout = column(card);
    layout->setSpacing(0);
    layout->addWidget(
        new StatRow({"arrow.down.circle.fill", colors::blue, "Stahování", "11.1 MB/s", colors::primary}));
    layout->addWidget(
        new StatRow({"arrow.up.circle.fill", colors::green, "Odesílání", "88.8 MB/s", colors::primary}));
    layout->addWidget(
        new StatRow({"thermometer.medium", colors::orange, "CPU Temperature", "71 °C", colors::orange}));
    layout->addWidget(new StatRow({"globe", colors::teal, "A label far too long for the room that is here",
                                   "5120.0 GB/s", colors::primary}));
    auto* badges = new QHBoxLayout;
    badges->setSpacing(metrics::regular);
    badges->addWidget(new Badge({"charging", colors::green}));
    badges->addWidget(new Badge({"pasivní", colors::gray}));
    badges->addWidget(new Badge({"ESTABLISHED", colors::blue}));
    badges->addStretch();
    layout->addLayout(badges);
    return card;
}

std::vector<HistorySample> samples(HistoryRange range) {
    const int count = static_cast<int>(popoverHours(range)) * 60;
    const WallTime last = WallTime{} + std::chrono::hours(494'000);
    std::vector<HistorySample> made;
    for (int minute = 0; minute < count; ++minute) {
        const double day = std::sin(minute * 2 * std::numbers::pi / 1440);
        const double cpu = minute % 997 == 0 ? 99 : 25 + 15 * day + 8 * std::sin(minute / 7.0);
        made.push_back(
            {last - std::chrono::minutes(count - minute), cpu, 58 + 9 * std::sin(minute / 700.0), {}});
    }
    return made;
}

QWidget* charts(LocalizationManager& loc, QWidget* parent) {
    auto* card = new CardBackground(parent);
    auto* layout = column(card);
    for (const HistoryRange range : {HistoryRange::day, HistoryRange::twoWeeks, HistoryRange::live}) {
        auto* chart = new DayHistoryChart(loc);
        chart->set({samples(range), range});
        layout->addWidget(chart);
    }
    return card;
}

QWidget* heroes(QWidget* parent) {
    auto* box = new QWidget(parent);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::medium);
    const auto accent = gradientColors(AccentTheme::blue);
    row->addWidget(new HeroStatCard(
        {"cpu.fill", "CPU", "42%", "8 cores · 71 °C", {accent[0], accent[1]}, wave(60, 50, 30)}));
    row->addWidget(new HeroStatCard({"memorychip.fill",
                                     "Paměť",
                                     "9.6 / 16 GB",
                                     "60%",
                                     {colors::green, colors::green.withOpacity(0.6)},
                                     {}}));
    return box;
}

std::unique_ptr<QWidget> sheet(AppIconCache& icons, LocalizationManager& loc) {
    auto page = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(page.get());
    layout->setSpacing(metrics::medium);
    layout->setContentsMargins(metrics::large, metrics::large, metrics::large, metrics::large);
    layout->addWidget(new SectionHeader({"cpu.fill", colors::blue, "Přehled / Overview"}));
    layout->addWidget(rings(page.get()));
    layout->addWidget(heroes(page.get()));
    layout->addWidget(lines(page.get()));
    layout->addWidget(rows(page.get()));
    layout->addWidget(charts(loc, page.get()));
    layout->addWidget(new ProcessIconView(icons));
    return page;
}

struct Look {
    const char* name;
    QPalette palette;
};

struct Scene {
    const char* name;
    StatsSnapshot snapshot;
    AppLanguage language;
    bool settings;
    int height;
};

/// The actions of a desktop that can do all of them, and some automations.
struct ActionCards {
    explicit ActionCards(PanelParts& parts)
        : actions(desktop, dialogs, processes, parts.loc, [] {}),
          runner(automations, parts.dispatcher, dialogs, parts.loc), context{
                                                                         parts.settings, parts.loc, runner,
                                                                         "~/.local/share/Tarvo/automations"} {
        desktop.systemFamily = SystemFamily::other;
        parts.settings.setCustomShortcuts({"Back up photos", "VPN", "Tidy up the downloads of the week"});
    }
    static std::shared_ptr<Automations> someAutomations() {
        auto made = std::make_shared<ScriptedAutomations>();
        made->systemFamily = SystemFamily::other;
        return made;
    }
    void complete(PanelContext& panel) {
        panel.makeQuickActionsCard = [this, &loc = panel.loc](QWidget* parent) {
            return new QuickActionsCard(actions, loc, parent);
        };
        panel.makeAutomationsCard = [this](QWidget* parent) { return new AutomationsCard(context, parent); };
        panel.makeAutomationsSettingsCard = [this](QWidget* parent) {
            return new CustomAutomationsCard(context, parent);
        };
    }

    ScriptedDesktopActions desktop;
    ScriptedDialogs dialogs;
    RecordingProcessControl processes;
    QuickActions actions;
    std::shared_ptr<Automations> automations = someAutomations();
    AutomationRunner runner;
    AutomationsContext context;
};

void drawPage(const QDir& folder, const Scene& scene, const Look& look, int scale) {
    PanelParts parts;
    parts.showEverything();
    parts.store.set(keys::wifiSSIDEnabled, true);
    parts.loc.setLanguage(scene.language);
    parts.history = samples(HistoryRange::day);
    parts.publish(scene.snapshot);
    parts.model->publishedCPUHistory().set(wave(60, 40, 25));
    parts.model->publishedMemHistory().set(wave(60, 61, 2));
    parts.update.set(UpdateInfo{"2.0", "https://example.org", std::nullopt});
    ActionCards cards(parts);
    PanelContext context = parts.context();
    cards.complete(context);
    PopoverView view(context);
    view.setPalette(look.palette);
    view.setShowSettings(scene.settings);
    const QSize size(360, scene.height);
    painted(view, size);
    QApplication::processEvents();
    const QImage image = painted(view, size, scale, look.palette.color(QPalette::Window));
    image.save(folder.filePath(QStringLiteral("%1-%2-%3.png")
                                   .arg(QLatin1String(scene.name), QLatin1String(look.name))
                                   .arg(scale * 100)));
}

void drawPages(const QDir& folder) {
    const Look light{"light", lightPalette()};
    const Look dark{"dark", darkPalette()};
    const Scene scenes[] = {{"popover-en", laptopSnapshot(), AppLanguage::en, false, 2200},
                            {"popover-cs", laptopSnapshot(), AppLanguage::cs, false, 2200},
                            {"popover-empty", {}, AppLanguage::en, false, 1800},
                            {"popover-extreme", extremeSnapshot(), AppLanguage::cs, false, 2600},
                            {"settings-en", {}, AppLanguage::en, true, 1800},
                            {"settings-cs", {}, AppLanguage::cs, true, 1800}};
    for (const Scene& scene : scenes) {
        for (const Look& look : {light, dark})
            drawPage(folder, scene, look, 1);
        drawPage(folder, scene, light, 2);
    }
}

void drawSheets(const QDir& folder) {
    AppIconCache icons({});
    MemoryPreferenceStore store;
    LocalizationManager loc(store, "cs");
    for (const Look& look : {Look{"light", lightPalette()}, Look{"dark", darkPalette()}}) {
        for (const int scale : {1, 2}) {
            const auto page = sheet(icons, loc);
            page->setPalette(look.palette);
            const QSize size(420, page->sizeHint().height());
            const QImage image = painted(*page, size, scale, look.palette.color(QPalette::Window));
            const QString name =
                QStringLiteral("elements-%1-%2.png").arg(QLatin1String(look.name)).arg(scale * 100);
            image.save(folder.filePath(name));
        }
    }
}

} // namespace
} // namespace tarvo::ui

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 2) return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    tarvo::ui::drawSheets(folder);
    tarvo::ui::drawPages(folder);
    return 0;
}
