#pragma once

#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "ui/pages/panel_context.h"
#include "ui/sample_snapshots.h"

#include <memory>
#include <string>
#include <vector>

namespace tarvo::ui {

/// What a page needs, made of doubles, with a record of what the user asked for.
struct PanelParts {
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    MemoryPreferenceStore store;
    Settings settings{store};
    LocalizationManager loc{store, "en"};
    NotificationCenter notifications;
    AppIconCache icons{{}};
    std::shared_ptr<StatsModel> model = StatsModel::make(settings, clock, dispatcher, {}, nullptr);
    Published<std::optional<UpdateInfo>> update;
    std::vector<HistorySample> history;
    std::vector<std::string> asked;
    bool launchesAtLogin = false;

    PanelContext context() {
        PanelContext made{*model, settings, loc, notifications, icons, SystemFamily::other, "v1.2.3"};
        made.availableUpdate = &update;
        made.historySamples = [this](double hours) {
            asked.push_back("history " + std::to_string(static_cast<int>(hours)));
            return history;
        };
        made.lastHistorySample = [this] { return history.empty() ? WallTime{} : history.back().date; };
        made.openDetailWindow = [this] { asked.push_back("detail"); };
        made.quit = [this] { asked.push_back("quit"); };
        made.openLink = [this](const std::string& address) { asked.push_back("open " + address); };
        made.confirmKill = [this](const ProcInfo& process) {
            asked.push_back("kill " + std::to_string(process.pid));
        };
        made.launchesAtLogin = [this] { return launchesAtLogin; };
        made.askForNetworkName = [this] { asked.push_back("network name"); };
        made.setLaunchAtLogin = [this](bool launches) { launchesAtLogin = launches; };
        return made;
    }

    void publish(const StatsSnapshot& snapshot) { model->publishedSnap().set(snapshot); }
    void showEverything(bool shown = true) {
        for (const Setting& setting : settingTable()) {
            if (setting.key.starts_with("show.")) store.set(setting.key, shown);
        }
    }
};

} // namespace tarvo::ui
