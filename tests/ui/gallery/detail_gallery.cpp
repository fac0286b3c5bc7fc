// Pictures of every section of the detail window and of every module's panel, for people:
// tarvo-detail-gallery <folder>
#include "support/painted_widget.h"
#include "ui/detail/detail_view.h"
#include "ui/detail_fixture.h"
#include "ui/sections/module_detail_view.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

void fill(DetailParts& parts) {
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.loadAvg1 = 1.52;
    snapshot.loadAvg5 = 1.1;
    snapshot.loadAvg15 = 0.84;
    snapshot.memWiredGB = 2.1;
    snapshot.memActiveGB = 6.9;
    snapshot.memCompressedGB = 0.8;
    snapshot.memInactiveGB = 4.4;
    snapshot.memFreeGB = 1.8;
    snapshot.swapUsedGB = 0.4;
    snapshot.swapTotalGB = 8;
    std::vector<double> cpu;
    std::vector<double> memory;
    for (int tick = 0; tick < 60; ++tick) {
        cpu.push_back(30 + 22 * std::sin(tick / 5.0) + tick % 7);
        memory.push_back(55 + tick / 10.0);
    }
    parts.model->publishedCPUHistory().set(cpu);
    parts.model->publishedMemHistory().set(memory);
    const WallTime now{std::chrono::seconds{1'763'900'000}};
    for (int minute = 0; minute < 1440; minute += 5) {
        const double load = 25 + 20 * std::sin(minute / 90.0) + (minute / 5) % 9;
        parts.history.push_back({now - std::chrono::minutes(1440 - minute), load, 50 + minute / 120.0, {}});
    }
    const std::vector<std::string> names{"firefox", "gnome-shell", "Xorg", "pipewire", "systemd", "clangd"};
    for (int index = 0; index < 40; ++index) {
        parts.processes.push_back({1000 + index * 37, names[static_cast<std::size_t>(index) % names.size()],
                                   7.9 / (index + 1), 2.5 / (index + 1)});
        parts.connections.push_back({{},
                                     names[static_cast<std::size_t>(index) % names.size()],
                                     1000 + index,
                                     "TCP",
                                     "192.168.1.23:" + std::to_string(50000 + index),
                                     "[2001:db8:85a3::8a2e:370:7334]:443",
                                     index % 5 == 0 ? "TIME_WAIT" : "ESTABLISHED"});
    }
    for (int core = 0; core < 6; ++core)
        parts.sensors.push_back({"Tp1" + std::to_string(core), 52.0 + core * 6});
    parts.alerts = {{{}, now, "High CPU load", "The processor has been above 90% for 5 minutes."},
                    {{}, now, "Low disk space", "Only 8 GB are free."},
                    {{}, now, "Low battery", "10% remaining."}};
    parts.publish(snapshot);
}

void save(QWidget& widget, QSize size, const QPalette& palette, const QString& path) {
    widget.setPalette(palette);
    widget.resize(size);
    widget.show();
    QApplication::processEvents();
    painted(widget, size, 1, palette.color(QPalette::Window)).save(path);
}

void saveAll(const QDir& folder, AppLanguage language, bool isDark) {
    DetailParts parts;
    fill(parts);
    parts.loc.setLanguage(language);
    const QPalette palette = isDark ? darkPalette() : lightPalette();
    QApplication::setPalette(palette);
    const QString suffix =
        QString::fromUtf8(language == AppLanguage::cs ? "-cs" : "-en") + (isDark ? "-dark" : "-light");
    DetailView view(parts.detail());
    view.resize(980, 640);
    view.show();
    for (const DetailSection section : allDetailSections) {
        view.select(section);
        parts.dispatcher.runAll();
        QApplication::processEvents();
        const std::string_view name = identifier(section);
        save(view, QSize(980, 640), palette,
             folder.filePath(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())) + suffix +
                             ".png"));
    }
    for (const MenuBarModule module : allMenuBarModules) {
        ModuleDetailView panel(module, parts.context());
        const std::string_view name = rawValue(module);
        save(panel, panel.sizeHint(), palette,
             folder.filePath("panel-" + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())) +
                             suffix + ".png"));
    }
}

} // namespace
} // namespace tarvo::ui

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "fusion");
    QApplication application(argc, argv);
    if (argc != 2) return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral("."))) return 1;
    for (const auto language : {tarvo::AppLanguage::en, tarvo::AppLanguage::cs}) {
        tarvo::ui::saveAll(folder, language, false);
        tarvo::ui::saveAll(folder, language, true);
    }
    return 0;
}
