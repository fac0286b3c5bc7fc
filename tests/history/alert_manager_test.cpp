#include "history/alert_manager.h"

#include "core/setting_keys.h"
#include "support/manual_clock.h"
#include "support/memory_file.h"
#include "support/memory_preference_store.h"
#include "support/recording_notifications.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AlertManagerTest : public testing::Test {
protected:
    AlertManager makeManager(SystemFamily family = SystemFamily::other) {
        return AlertManager({notifications, [this]() -> AlertLogStore& { return log; }, settings,
                             localization, clock, family});
    }

    /// Offers the same load every two seconds, at once and until this much time has passed.
    void keepCPUAt(double cpu, std::chrono::seconds duration) {
        manager.evaluateCPU(cpu);
        for (auto passed = 0s; passed < duration; passed += 2s) {
            clock.advance(2s);
            manager.evaluateCPU(cpu);
            noteRaised();
        }
    }
    void noteRaised() {
        while (raisedAfter.size() < notifications.added.size()) {
            raisedAfter.push_back(std::chrono::duration_cast<std::chrono::seconds>(clock.wallNow() - start));
        }
    }
    static BatteryInfo onBattery(std::int64_t percentage) { return {.percentage = percentage}; }
    static BatteryInfo pluggedIn(std::int64_t percentage) {
        return {.percentage = percentage, .isPluggedIn = true};
    }
    std::vector<std::string> bodies() const {
        std::vector<std::string> texts;
        for (const auto& notification : notifications.added)
            texts.push_back(notification.body);
        return texts;
    }
    std::size_t raised() const { return notifications.added.size(); }

    ManualClock clock;
    const WallTime start = clock.wallNow();
    MemoryPreferenceStore preferences;
    Settings settings{preferences};
    LocalizationManager localization{preferences, "en"};
    MemoryFile file;
    AlertLogStore log{file, clock};
    RecordingNotifications notifications;
    AlertManager manager = makeManager();
    std::vector<std::chrono::seconds> raisedAfter;
};

TEST_F(AlertManagerTest, AsksForThePermissionWhenItIsMade) {
    EXPECT_EQ(notifications.authorizationRequests, 1);
    EXPECT_THAT(notifications.added, IsEmpty());
}

// Sustained processor load

TEST_F(AlertManagerTest, RaisesAnAlertAfterThirtySecondsAtTheThreshold) {
    keepCPUAt(90, 28s);
    EXPECT_EQ(raised(), 0u);
    keepCPUAt(90, 2s);
    EXPECT_THAT(bodies(), ElementsAre("CPU has been above 90% for a while (currently 90%)"));
    EXPECT_EQ(notifications.added[0].title, "High CPU Usage");
}

TEST_F(AlertManagerTest, StartsTheThirtySecondsAgainAfterOneSnapshotBelowTheThreshold) {
    keepCPUAt(90, 28s);
    manager.evaluateCPU(89);
    clock.advance(2s);
    keepCPUAt(90, 28s);
    EXPECT_EQ(raised(), 0u);
    keepCPUAt(90, 2s);
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, RepeatsEveryTenMinutesWhileTheLoadStaysHigh) {
    keepCPUAt(97.4, 25min);
    EXPECT_THAT(raisedAfter, ElementsAre(30s, 630s, 1230s));
}

TEST_F(AlertManagerTest, KeepsTheTenMinutesAfterADip) {
    keepCPUAt(95, 30s);
    manager.evaluateCPU(10);
    clock.advance(2min);
    keepCPUAt(95, 15min);
    ASSERT_THAT(raisedAfter, SizeIs(2));
    EXPECT_EQ(raisedAfter[1], 630s);
}

TEST_F(AlertManagerTest, WantsAFreshRunAfterADipEvenWhenTenMinutesAreOver) {
    keepCPUAt(95, 30s);
    clock.advance(10min);
    manager.evaluateCPU(10);
    keepCPUAt(95, 28s);
    EXPECT_EQ(raised(), 1u);
    keepCPUAt(95, 2s);
    EXPECT_EQ(raised(), 2u);
}

TEST_F(AlertManagerTest, TakesAThresholdOfZeroAsNinety) {
    preferences.set(keys::cpuAlertThreshold, 0.0);
    keepCPUAt(89.9, 60s);
    EXPECT_EQ(raised(), 0u);
    keepCPUAt(90, 30s);
    EXPECT_THAT(bodies(), ElementsAre("CPU has been above 90% for a while (currently 90%)"));
}

TEST_F(AlertManagerTest, SaysTheThresholdThatIsSetAndThePresentLoad) {
    preferences.set(keys::cpuAlertThreshold, 75.0);
    keepCPUAt(82.6, 30s);
    EXPECT_THAT(bodies(), ElementsAre("CPU has been above 75% for a while (currently 83%)"));
}

TEST_F(AlertManagerTest, WaitsWhileTheClockIsSetBackInTheMiddleOfALoad) {
    keepCPUAt(95, 30s);
    EXPECT_EQ(raised(), 1u);
    clock.setWall(start - 1h);
    keepCPUAt(95, 1h + 10min);
    EXPECT_EQ(raised(), 1u);
    keepCPUAt(95, 30s);
    EXPECT_EQ(raised(), 2u);
}

TEST_F(AlertManagerTest, TakesAClockSetForwardAsTimePassed) {
    keepCPUAt(95, 10s);
    clock.setWall(start + 24h);
    manager.evaluateCPU(95);
    EXPECT_EQ(raised(), 1u);
    clock.setWall(start + 24h + 10min);
    manager.evaluateCPU(95);
    EXPECT_EQ(raised(), 2u);
}

// Low disk space

TEST_F(AlertManagerTest, SaysHowMuchSpaceIsLeft) {
    manager.evaluateDisk(9.5);
    ASSERT_EQ(raised(), 1u);
    EXPECT_EQ(notifications.added[0].title, "Low Disk Space");
    EXPECT_EQ(notifications.added[0].body, "Only 9.5 GB of free space left");
}

TEST_F(AlertManagerTest, CountsExactlyTheThresholdAsLowSpace) {
    manager.evaluateDisk(10.01);
    EXPECT_EQ(raised(), 0u);
    manager.evaluateDisk(10.0);
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, SaysNothingOfSpaceThatIsNotKnown) {
    manager.evaluateDisk(std::nullopt);
    EXPECT_EQ(raised(), 0u);
}

TEST_F(AlertManagerTest, RepeatsTheDiskAlertAfterAnHour) {
    manager.evaluateDisk(5);
    clock.advance(59min);
    manager.evaluateDisk(5);
    EXPECT_EQ(raised(), 1u);
    clock.advance(1min);
    manager.evaluateDisk(5);
    EXPECT_EQ(raised(), 2u);
}

TEST_F(AlertManagerTest, KeepsTheHourAlthoughSpaceWasFreedInBetween) {
    manager.evaluateDisk(5);
    clock.advance(10min);
    manager.evaluateDisk(500);
    manager.evaluateDisk(5);
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, TakesADiskThresholdOfZeroAsItIs) {
    preferences.set(keys::diskFreeAlertGB, 0.0);
    manager.evaluateDisk(0.1);
    EXPECT_EQ(raised(), 0u);
    manager.evaluateDisk(0);
    EXPECT_THAT(bodies(), ElementsAre("Only 0.0 GB of free space left"));
}

TEST_F(AlertManagerTest, WaitsForTheHourOfTheDiskAlertAfterTheClockWasSetBack) {
    manager.evaluateDisk(5);
    clock.setWall(start - 2h);
    manager.evaluateDisk(5);
    clock.setWall(start + 59min);
    manager.evaluateDisk(5);
    EXPECT_EQ(raised(), 1u);
    clock.setWall(start + 1h);
    manager.evaluateDisk(5);
    EXPECT_EQ(raised(), 2u);
}

// Low battery

TEST_F(AlertManagerTest, RaisesOneBatteryAlertAndIsArmedAgainTenPointsAboveTheThreshold) {
    manager.evaluateBattery(onBattery(21));
    EXPECT_EQ(raised(), 0u);
    for (const int percentage : {20, 19, 15})
        manager.evaluateBattery(onBattery(percentage));
    EXPECT_EQ(raised(), 1u);
    manager.evaluateBattery(onBattery(30));
    manager.evaluateBattery(onBattery(20));
    EXPECT_EQ(raised(), 1u);
    manager.evaluateBattery(onBattery(31));
    manager.evaluateBattery(onBattery(25));
    EXPECT_EQ(raised(), 1u);
    manager.evaluateBattery(onBattery(20));
    EXPECT_EQ(raised(), 2u);
}

TEST_F(AlertManagerTest, IsArmedAgainByPower) {
    manager.evaluateBattery(onBattery(15));
    manager.evaluateBattery(pluggedIn(15));
    EXPECT_EQ(raised(), 1u);
    manager.evaluateBattery(onBattery(14));
    EXPECT_EQ(raised(), 2u);
}

TEST_F(AlertManagerTest, StaysAsItIsWithoutABattery) {
    manager.evaluateBattery(std::nullopt);
    EXPECT_EQ(raised(), 0u);
    manager.evaluateBattery(onBattery(10));
    manager.evaluateBattery(std::nullopt);
    manager.evaluateBattery(onBattery(9));
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, TakesABatteryThresholdOfZeroAsTwenty) {
    preferences.set(keys::batteryAlertPercent, 0.0);
    manager.evaluateBattery(onBattery(20));
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, NamesTheMachineAsItIs) {
    manager.evaluateBattery(onBattery(7));
    EXPECT_EQ(notifications.added[0].title, "Low Battery");
    EXPECT_EQ(notifications.added[0].body, "Battery is at 7% and the computer isn't plugged in");
    makeManager(SystemFamily::macOS).evaluateBattery(onBattery(7));
    EXPECT_EQ(notifications.added[1].body, "Battery is at 7% and the MacBook isn't plugged in");
}

// All together

TEST_F(AlertManagerTest, SpeaksCzechWhenThatIsTheLanguageOfTheMoment) {
    localization.setLanguage(AppLanguage::cs);
    keepCPUAt(95.5, 30s);
    manager.evaluateDisk(9.5);
    manager.evaluateBattery(onBattery(20));
    makeManager(SystemFamily::macOS).evaluateBattery(onBattery(20));
    EXPECT_THAT(bodies(),
                ElementsAre("CPU je dlouhodobě nad 90 % (aktuálně 96 %)", "Zbývá jen 9.5 GB volného místa",
                            "Baterie je na 20 % a počítač není připojený k napájení",
                            "Baterie je na 20 % a MacBook není připojený k napájení"));
    EXPECT_EQ(notifications.added[0].title, "Vysoké vytížení CPU");
    EXPECT_EQ(notifications.added[1].title, "Málo místa na disku");
    EXPECT_EQ(notifications.added[2].title, "Nízká baterie");
}

TEST_F(AlertManagerTest, EvaluatesWholeSnapshotsInOrder) {
    StatsSnapshot snapshot;
    snapshot.cpu = 99;
    snapshot.diskFreeGB = 1;
    snapshot.battery = onBattery(5);
    manager.evaluate(snapshot);
    clock.advance(30s);
    manager.evaluate(snapshot);
    EXPECT_THAT(bodies(), ElementsAre("Only 1.0 GB of free space left",
                                      "Battery is at 5% and the computer isn't plugged in",
                                      "CPU has been above 90% for a while (currently 99%)"));
}

TEST_F(AlertManagerTest, RemembersTheStartOfALoadWhileNothingIsEvaluated) {
    StatsSnapshot snapshot;
    snapshot.cpu = 95;
    manager.evaluate(snapshot);
    clock.advance(10min);
    EXPECT_EQ(raised(), 0u);
    manager.evaluate(snapshot);
    EXPECT_EQ(raised(), 1u);
}

TEST_F(AlertManagerTest, RecordsEachAlertNewestFirstWithItsOwnIdentifier) {
    manager.notify("one", "first");
    manager.notify("two", "second");
    ASSERT_THAT(log.entries(), SizeIs(2));
    EXPECT_EQ(log.entries()[0].title, "two");
    EXPECT_EQ(log.entries()[0].body, "second");
    EXPECT_EQ(log.entries()[1].title, "one");
    EXPECT_EQ(log.entries()[0].date, log.entries()[1].date);
    EXPECT_NE(log.entries()[0].id, log.entries()[1].id);
    const auto stored = parseAlertLog(file.content.value_or(""));
    ASSERT_TRUE(stored);
    EXPECT_THAT(*stored, SizeIs(2));
}

TEST_F(AlertManagerTest, GivesEachNotificationAnIdentifierOfItsOwn) {
    manager.notify("one", "first");
    manager.notify("one", "first");
    EXPECT_NE(notifications.added[0].identifier, notifications.added[1].identifier);
    EXPECT_EQ(UUID::parse(notifications.added[0].identifier)->text(), notifications.added[0].identifier);
}

TEST_F(AlertManagerTest, DropsTheOldestEntryOfAFullLog) {
    for (int i = 0; i < 501; ++i)
        manager.notify("title", std::to_string(i));
    EXPECT_THAT(log.entries(), SizeIs(500));
    EXPECT_EQ(log.entries().front().body, "500");
    EXPECT_EQ(log.entries().back().body, "1");
}

} // namespace
} // namespace tarvo
