#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using testing::ElementsAre;

class Lifecycle : public AppDelegateTest {};

TEST_F(Lifecycle, LaunchesInOrder) {
    std::vector<std::string> steps;
    auto given = services();
    given.makePopover = [&, make = popovers.factory()](const PopoverOptions& options,
                                                       std::function<void()> didClose) {
        steps.emplace_back(options.behavior == PopoverBehavior::transient ? "popover" : "hover popover");
        EXPECT_EQ(bar.made, 0);
        EXPECT_EQ(application.current, ActivationPolicy::accessory);
        return make(options, std::move(didClose));
    };
    given.evaluateAlerts = [&](const StatsSnapshot&) {
        if (steps.back() != "first tick") steps.emplace_back("first tick");
        EXPECT_EQ(bar.button(0).title, "CPU 12% · RAM 48%");
    };
    hotKeys.whenRegistered = [&] { steps.emplace_back("hot key"); };
    given.checkForUpdatesIfDue = [&] { steps.emplace_back("update check"); };
    launch(std::move(given));
    EXPECT_THAT(steps, ElementsAre("popover", "hover popover", "first tick", "hot key", "update check"));
}

TEST_F(Lifecycle, LaunchesAsAnAccessoryWithItsPopoversClosed) {
    launch();
    EXPECT_THAT(application.log, ElementsAre("accessory"));
    ASSERT_EQ(popovers.made.size(), 2u);
    EXPECT_EQ(popover().options, (PopoverOptions{PopoverBehavior::transient, true}));
    EXPECT_EQ(preview().options, (PopoverOptions{PopoverBehavior::applicationDefined, false}));
    EXPECT_FALSE(popover().isShown());
    EXPECT_FALSE(popover().hasContent());
    EXPECT_EQ(dispatcher.activeTimers(), 1u) << "the sampling timer only";
}

TEST_F(Lifecycle, ShowsAPlaceholderUntilTheFirstSnapshot) {
    std::vector<std::string> titles;
    auto given = services();
    bar.whenTitleIsSet = [&](const std::string& title) { titles.push_back(title); };
    launch(std::move(given));
    EXPECT_THAT(titles, ElementsAre("\u2026", "CPU 12% · RAM 48%"));
}

TEST_F(Lifecycle, RunsWithoutAnythingOptional) {
    launch({.application = application,
            .statusBar = bar,
            .settings = settings,
            .localization = localization,
            .notificationCenter = notificationCenter,
            .dispatcher = dispatcher,
            .model = model,
            .makeDetailWindow = {},
            .makePopover = {},
            .makePopoverContent = {},
            .makePreviewContent = {},
            .pointerPosition = {},
            .evaluateAlerts = {},
            .hotKeys = nullptr,
            .checkForUpdatesIfDue = {},
            .saveUnsavedHistory = {}});
    useModularLayout();
    announceStyleChange();
    tick();
    bar.button(0).click(StatusClick::left);
    bar.button(0).click(StatusClick::right);
    delegate->openDetailWindow();
    delegate->applicationWillTerminate();
    EXPECT_EQ(bar.button(0).title, "12%");
    EXPECT_EQ(dispatcher.activeTimers(), 1u) << "no poll for a preview that cannot be";
    EXPECT_THAT(application.log, ElementsAre("accessory"));
}

TEST_F(Lifecycle, TheDetailWindowOfTheWholeProcessIsTheDelegates) {
    launch();
    DetailWindowController::shared().show();
    EXPECT_EQ(application.windows.size(), 1u);
    EXPECT_TRUE(model->detailVisible());
    delegate->openDetailWindow();
    EXPECT_EQ(application.windows.size(), 1u) << "the same, brought to the front";
}

TEST_F(Lifecycle, GivesFreedMemoryBackAfterTheDetailWindowClosed) {
    int calls = 0;
    auto given = services();
    given.returnFreedMemory = [&calls] { ++calls; };
    launch(std::move(given));
    delegate->openDetailWindow();
    tick(std::chrono::minutes(1));
    EXPECT_EQ(calls, 0);
    application.closeWindow();
    EXPECT_EQ(calls, 0) << "the views are still going";
    tick(std::chrono::seconds(1));
    EXPECT_EQ(calls, 1);
    delegate->openDetailWindow();
    application.closeWindow();
    delegate.reset();
    tick(std::chrono::seconds(1));
    EXPECT_EQ(calls, 1) << "nobody to call any more";
}

TEST_F(Lifecycle, EvaluatesAlertsOnEachSnapshotWhileNotificationsAreEnabled) {
    std::vector<double> evaluated;
    auto given = services();
    given.evaluateAlerts = [&](const StatsSnapshot& snapshot) { evaluated.push_back(snapshot.cpu); };
    launch(std::move(given));
    machine.cpu.total = 95;
    tick();
    EXPECT_THAT(evaluated, ElementsAre(12, 95));
    set("notificationsEnabled", false);
    tick();
    EXPECT_EQ(evaluated.size(), 2u);
    EXPECT_EQ(bar.button(0).title, "CPU 95% · RAM 48%");
}

TEST_F(Lifecycle, SavesTheHistoryOnTerminationOnly) {
    int saves = 0;
    auto given = services();
    given.saveUnsavedHistory = [&] { ++saves; };
    launch(std::move(given));
    tick(std::chrono::minutes(5));
    EXPECT_EQ(saves, 0);
    delegate->applicationWillTerminate();
    EXPECT_EQ(saves, 1);
}

TEST_F(Lifecycle, QuitTerminatesTheApplication) {
    launch();
    delegate->quit();
    EXPECT_EQ(application.log.back(), "terminate");
}

TEST_F(Lifecycle, IsNotKeptAliveByWhatCallsIt) {
    launch();
    const std::weak_ptr<AppDelegate> weak = delegate;
    delegate.reset();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(bar.size(), 0u) << "its items are gone";
    tick(std::chrono::minutes(1));
    hotKeys.press();
    announceStyleChange();
    EXPECT_EQ(bar.made, 1);
}

} // namespace
} // namespace tarvo
