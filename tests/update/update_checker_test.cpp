#include "update/update_checker.h"

#include "core/setting_keys.h"
#include "core/shared_instance.h"
#include "platform/build_options.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/scripted_https_client.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::Eq;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* newer = R"({"version":"1.10","url":"https://tarvo.example/get"})";

class UpdateCheckerTest : public testing::Test {
protected:
    std::unique_ptr<UpdateChecker> makeChecker(std::optional<std::string> version = "1.9") {
        return std::make_unique<UpdateChecker>(UpdateServices{
            preferences, https, clock, dispatcher, "https://tarvo.example/update.json", std::move(version)});
    }
    void complete(std::optional<std::string> reply) {
        https.requests.back().completion(std::move(reply));
        dispatcher.runAll();
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    MemoryPreferenceStore preferences;
    ScriptedHTTPSClient https;
    std::unique_ptr<UpdateChecker> checker = makeChecker();
};

TEST_F(UpdateCheckerTest, AsksForTheManifestWithATimeOutOfEightSeconds) {
    checker->checkIfNeeded();
    ASSERT_THAT(https.requests, SizeIs(1));
    EXPECT_EQ(https.requests[0].address, "https://tarvo.example/update.json");
    EXPECT_EQ(https.requests[0].timeout, 8s);
    EXPECT_FALSE(preferences.object(keys::lastUpdateCheck));
}

TEST_F(UpdateCheckerTest, PublishesANewerVersion) {
    int announcements = 0;
    const auto subscription = checker->publishedAvailable().observeWillChange([&] { ++announcements; });
    checker->checkIfNeeded();
    complete(newer);
    EXPECT_THAT(checker->available(),
                Optional(UpdateInfo{"1.10", "https://tarvo.example/get", std::nullopt}));
    EXPECT_EQ(announcements, 1);
}

TEST_F(UpdateCheckerTest, PublishesOnTheMainThread) {
    checker->checkIfNeeded();
    https.requests[0].completion(newer);
    EXPECT_FALSE(checker->available());
    dispatcher.runMain();
    EXPECT_TRUE(checker->available());
}

TEST_F(UpdateCheckerTest, LeavesTheSameAndOlderVersionsUnmentioned) {
    for (const auto* version : {"1.9", "1.9.0", "1.8", "1"}) {
        checker->checkIfNeeded();
        complete(R"({"url":"https://tarvo.example","version":")" + std::string(version) + R"("})");
        EXPECT_FALSE(checker->available()) << version;
        clock.advance(25h);
    }
    EXPECT_THAT(https.requests, SizeIs(4));
}

TEST_F(UpdateCheckerTest, KeepsWhatItFoundWhenALaterCheckFindsNothing) {
    checker->checkIfNeeded();
    complete(newer);
    clock.advance(25h);
    checker->checkIfNeeded();
    complete(R"({"url":"https://tarvo.example","version":"1.0"})");
    EXPECT_TRUE(checker->available());
}

TEST_F(UpdateCheckerTest, TakesEveryVersionAboveZeroAsNewerWhenItHasNoneItself) {
    const auto unversioned = makeChecker(std::nullopt);
    unversioned->checkIfNeeded();
    complete(R"({"url":"https://tarvo.example","version":"0.0.1"})");
    EXPECT_TRUE(unversioned->available());
}

TEST_F(UpdateCheckerTest, ChecksOnceADay) {
    checker->checkIfNeeded();
    clock.advance(3s);
    complete(newer);
    EXPECT_THAT(preferences.object(keys::lastUpdateCheck), Optional(Eq(PreferenceValue(clock.wallNow()))));
    clock.advance(24h);
    makeChecker()->checkIfNeeded();
    EXPECT_THAT(https.requests, SizeIs(1));
    clock.advance(1s);
    makeChecker()->checkIfNeeded();
    EXPECT_THAT(https.requests, SizeIs(2));
}

TEST_F(UpdateCheckerTest, CountsAFailedRequestAsACheck) {
    const std::optional<std::string> replies[] = {std::nullopt, "no json", "{}"};
    for (const auto& reply : replies) {
        checker->checkIfNeeded();
        complete(reply);
        EXPECT_FALSE(checker->available());
        EXPECT_THAT(preferences.object(keys::lastUpdateCheck),
                    Optional(Eq(PreferenceValue(clock.wallNow()))));
        clock.advance(25h);
    }
}

TEST_F(UpdateCheckerTest, ChecksWhenTheStoredTimeIsNoDate) {
    preferences.set(keys::lastUpdateCheck, std::string("yesterday"));
    checker->checkIfNeeded();
    EXPECT_THAT(https.requests, SizeIs(1));
}

TEST_F(UpdateCheckerTest, DropsAReplyThatOutlivesIt) {
    checker->checkIfNeeded();
    https.requests[0].completion(newer);
    checker.reset();
    dispatcher.runAll();
    EXPECT_FALSE(preferences.object(keys::lastUpdateCheck));
}

TEST_F(UpdateCheckerTest, AsksForNothingWithoutAnAddress) {
    UpdateChecker silent({preferences, https, clock, dispatcher, "", "1.0"});
    silent.checkIfNeeded();
    EXPECT_THAT(https.requests, IsEmpty());
}

TEST_F(UpdateCheckerTest, IsReachedThroughItsDoor) {
    const SharedInstance installed(*checker);
    EXPECT_EQ(&UpdateChecker::shared(), checker.get());
}

TEST(AppVersionString, IsTheVersionBehindAV) {
    EXPECT_EQ(appVersionString("1.4.2"), "v1.4.2");
    EXPECT_EQ(appVersionString(std::nullopt), "");
}

TEST(BuildOptions, NameHTTPSAddressesAndAVersion) {
    EXPECT_THAT(std::string(build_options::updateManifestAddress), StartsWith("https://"));
    EXPECT_THAT(std::string(build_options::publicAddressService), StartsWith("https://"));
    EXPECT_THAT(std::string(build_options::version), testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+"));
}

} // namespace
} // namespace tarvo
