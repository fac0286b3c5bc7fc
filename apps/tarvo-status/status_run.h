#pragma once

#include "core/stats_model.h"
#include "interval_preferences.h"
#include "options.h"
#include "tracking_dispatcher.h"

#include <chrono>
#include <functional>
#include <optional>

namespace tarvo::status {

/// When a run prints. Loads and rates need some time between two readings, so the first line comes a quarter
/// of a second after the start; the others follow at the interval. A run that prints once waits until every
/// background reading has answered. Main thread only.
class StatusRun {
public:
    static constexpr Seconds primingTime{0.25};
    /// A reading that has not answered by then is left out.
    static constexpr std::chrono::milliseconds answerLimit{10'000};
    /// How often, at most, the preferences are looked at again.
    static constexpr std::chrono::milliseconds preferencePeriod{5'000};

    struct Actions {
        std::function<void(const StatsSnapshot&)> print;
        std::function<void()> end;
        /// Looks whether the user's preferences have changed.
        std::function<void()> refreshPreferences;
    };

    /// The references outlive the run; the model uses the same preferences and dispatcher.
    StatusRun(const Options& options, StatsModel& model, const Settings& settings,
              IntervalPreferences& preferences, const Clock& clock, TrackingDispatcher& dispatcher,
              Actions actions);

    void start();

private:
    void modelDidUpdate(const StatsSnapshot& snapshot);
    void followPreferences();
    void printOnceIdle();
    void printAndEnd();

    const Options& options_;
    StatsModel& model_;
    const Settings& settings_;
    IntervalPreferences& preferences_;
    const Clock& clock_;
    TrackingDispatcher& dispatcher_;
    Actions actions_;
    bool isPrimed_ = false;
    bool isWaiting_ = false;
    bool hasEnded_ = false;
    double interval_ = 0; ///< seconds; what the model's timer runs with
    SteadyTime lastPreferenceRefresh_;
};

} // namespace tarvo::status
