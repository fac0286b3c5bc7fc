#pragma once

#include "localization/localization_manager.h"
#include "menubar/app_delegate.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/recording_application.h"
#include "support/recording_hot_keys.h"
#include "support/recording_popover.h"
#include "support/recording_status_bar.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace tarvo {

/// The delegate over doubles and a machine whose readings a test sets. Virtual time stands still until told.
class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest() {
        machine.cpu.total = 12;
        machine.memory.memPercent = 48;
    }

    StatsReaders readers() {
        StatsReaders readers;
        readers.cpuUsage = [this]() -> const CPUUsage& { return machine.cpu; };
        readers.memoryUsage = [this] { return machine.memory; };
        readers.networkTotals = [this] { return machine.network; };
        readers.diskSpace = [this] { return machine.disk; };
        readers.batteryInfo = [this] { return machine.battery; };
        readers.sensorReadings = [this] { return machine.sensors; };
        readers.topProcesses = [this](ProcessSort, std::int64_t) {
            ++machine.processLists;
            return std::vector<ProcInfo>{};
        };
        return readers;
    }

    /// Services with everything that the tests of one subject do not care about left empty.
    AppServices services() {
        return {.application = application,
                .statusBar = bar,
                .settings = settings,
                .localization = localization,
                .notificationCenter = notificationCenter,
                .dispatcher = dispatcher,
                .model = model,
                .makeDetailWindow = application.windowFactory(),
                .makePopover = popovers.factory(),
                .makePopoverContent = [this] { return std::make_unique<NumberedContent>(++contentsMade); },
                .makePreviewContent =
                    [this](MenuBarModule module) {
                        previewModules.push_back(module);
                        return std::make_unique<NumberedContent>(static_cast<int>(module) + 100);
                    },
                .pointerPosition = [this] { return pointer; },
                .evaluateAlerts = {},
                .hotKeys = &hotKeys,
                .checkForUpdatesIfDue = {},
                .saveUnsavedHistory = {}};
    }

    void launch() { launch(services()); }
    void launch(AppServices given) {
        delegate = std::make_shared<AppDelegate>(std::move(given));
        delegate->applicationDidFinishLaunching();
    }
    void set(const std::string& key, PreferenceValue value) { store.set(key, std::move(value)); }
    void useModularLayout() { set("modularMenuBar", true); }
    /// What the settings page does after a change.
    void announceStyleChange() { notificationCenter.post(menuBarStyleChanged); }
    void tick(std::chrono::milliseconds by = std::chrono::seconds(2)) { dispatcher.advance(by); }

    /// The main popover, made first, and the hover preview's, made second.
    RecordingPopover& popover() { return *popovers.made.at(0); }
    RecordingPopover& preview() { return *popovers.made.at(1); }

    struct Machine {
        CPUUsage cpu;
        MemoryInfo memory;
        NetworkTotals network;
        std::optional<DiskSpace> disk;
        std::optional<BatteryInfo> battery;
        SensorReadings sensors;
        int processLists = 0;
    } machine;

    MemoryPreferenceStore store;
    Settings settings{store};
    LocalizationManager localization{store, std::nullopt};
    NotificationCenter notificationCenter;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    RecordingApplication application;
    RecordingStatusBar bar;
    RecordingPopovers popovers;
    std::shared_ptr<StatsModel> model = StatsModel::make(settings, clock, dispatcher, readers(), nullptr);
    std::optional<Point> pointer;
    RecordingHotKeys hotKeys;
    int contentsMade = 0;
    std::vector<MenuBarModule> previewModules;
    std::shared_ptr<AppDelegate> delegate;
};

} // namespace tarvo
