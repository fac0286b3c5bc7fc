#pragma once

#include "detail.h"
#include "linux/bluez.h"
#include "stored_records.h"

#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/recorded_machine.h"
#include "ui/detail/detail_view.h"

#include <QApplication>

#include <chrono>
#include <string>

namespace tarvo {

/// The detail window's parts over a recorded machine that has been watched for two seconds, wired as the
/// program wires them. Virtual time stands still from then on.
class RecordedDetail {
public:
    explicit RecordedDetail(const std::string& name) : recorded_(name) {
        model_->setDetailVisible(true);
        model_->start();
        dispatcher_.runAll();
        recorded_.letTimePass();
        dispatcher_.advance(std::chrono::seconds(2)); // one tick, which sees what has changed since
        for (int minute = 0; minute < 2; ++minute)
            machine_.processDemand().sample();
    }

    ui::DetailContext context() {
        ui::PanelContext panel{*model_, settings_, loc_, notifications_, icons_, SystemFamily::other, "v1"};
        panel.historySamples = [this](double lastHours) { return records_.history().samples(lastHours); };
        panel.lastHistorySample = [this] { return records_.history().lastSampleTime(); };
        return detailContext(std::move(panel), machine_, bluetooth_, dispatcher_);
    }

    /// Selects the section and lets it load.
    void showSection(ui::DetailView& view, ui::DetailSection section) {
        view.select(section);
        dispatcher_.runAll();
        QApplication::processEvents();
    }

    LocalizationManager& localization() { return loc_; }

private:
    RecordedMachine recorded_;
    ManualClock clock_;
    ManualDispatcher dispatcher_{clock_};
    MemoryPreferenceStore store_;
    Settings settings_{store_};
    LocalizationManager loc_{store_, "en"};
    NotificationCenter notifications_;
    ui::AppIconCache icons_{{}};
    Machine machine_{{.root = recorded_.root()}, clock_, dispatcher_};
    Bluetooth bluetooth_{bluezSources(bluetoothBus(recorded_.root()), recorded_.root(), dispatcher_)};
    StoredRecords records_{recorded_.root() + "/home/ann/.local/share/Tarvo", clock_};
    std::shared_ptr<StatsModel> model_ =
        StatsModel::make(settings_, clock_, dispatcher_, machine_.readers(), nullptr);
};

} // namespace tarvo
