#pragma once

#include "core/stats_model.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/recording_history.h"
#include "support/scripted_readers.h"

#include <gmock/gmock.h>

namespace tarvo {

/// A model among doubles, not yet started, in virtual time.
struct StatsModelTest : testing::Test {
    void start() {
        model->start();
        script.calls.clear();
    }
    /// Lets the time of one default refresh pass and everything that it starts end.
    void tick() { dispatcher.advance(std::chrono::seconds{2}); }
    const StatsSnapshot& snap() const { return model->snap(); }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    MemoryPreferenceStore store;
    Settings settings{store};
    ScriptedReaders script;
    RecordingHistory history{clock};
    std::shared_ptr<StatsModel> model =
        StatsModel::make(settings, clock, dispatcher, script.readers(), &history);
};

} // namespace tarvo
