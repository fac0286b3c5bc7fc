#include "status_run.h"

#include <utility>

namespace tarvo::status {

StatusRun::StatusRun(const Options& options, StatsModel& model, const Settings& settings,
                     IntervalPreferences& preferences, const Clock& clock, TrackingDispatcher& dispatcher,
                     Actions actions)
    : options_(options), model_(model), settings_(settings), preferences_(preferences), clock_(clock),
      dispatcher_(dispatcher), actions_(std::move(actions)), lastPreferenceRefresh_(clock.steadyNow()) {}

void StatusRun::start() {
    preferences_.setInterval(primingTime);
    model_.setDetailVisible(options_.detail);
    model_.onUpdate = [this](const StatsSnapshot& snapshot) { modelDidUpdate(snapshot); };
    model_.start();
}

void StatusRun::modelDidUpdate(const StatsSnapshot& snapshot) {
    if (hasEnded_) return;
    if (!std::exchange(isPrimed_, true)) return;
    if (options_.once) {
        if (!std::exchange(isWaiting_, true)) printOnceIdle();
        return;
    }
    followPreferences();
    actions_.print(snapshot);
}

void StatusRun::followPreferences() {
    if (clock_.steadyNow() - lastPreferenceRefresh_ >= preferencePeriod) {
        lastPreferenceRefresh_ = clock_.steadyNow();
        actions_.refreshPreferences();
    }
    preferences_.setInterval(options_.interval);
    if (interval_ == settings_.refreshInterval()) return;
    interval_ = settings_.refreshInterval();
    model_.restartTimer();
}

void StatusRun::printOnceIdle() {
    dispatcher_.after(answerLimit, [this] { printAndEnd(); });
    dispatcher_.whenIdle([this] { printAndEnd(); });
}

void StatusRun::printAndEnd() {
    if (std::exchange(hasEnded_, true)) return;
    actions_.print(model_.snap());
    actions_.end();
}

} // namespace tarvo::status
