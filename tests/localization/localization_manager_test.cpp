#include "localization/localization_manager.h"

#include "core/shared_instance.h"
#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvo {
namespace {

constexpr LKey memory{.cs = "Paměť", .en = "Memory"};

struct LocalizationTest : testing::Test {
    AppLanguage chosenWith(std::optional<std::string> system) {
        return LocalizationManager(store, system).language();
    }

    MemoryPreferenceStore store;
};

TEST_F(LocalizationTest, AStoredLanguageWinsOverTheSystem) {
    store.set("appLanguage", std::string("en"));
    EXPECT_EQ(chosenWith("cs"), AppLanguage::en);
    store.set("appLanguage", std::string("cs"));
    EXPECT_EQ(chosenWith("en"), AppLanguage::cs);
}

TEST_F(LocalizationTest, ACzechSystemShowsCzechWithoutStoringIt) {
    EXPECT_EQ(chosenWith("cs"), AppLanguage::cs);
    EXPECT_FALSE(store.object("appLanguage"));
}

TEST_F(LocalizationTest, EveryOtherSystemShowsEnglish) {
    for (const char* code : {"sk", "de", "en", "", "CS", "cs-CZ"})
        EXPECT_EQ(chosenWith(code), AppLanguage::en) << code;
    EXPECT_EQ(chosenWith(std::nullopt), AppLanguage::en);
}

TEST_F(LocalizationTest, AStoredTextThatIsNoLanguageCountsAsNothingStored) {
    store.set("appLanguage", std::string("de"));
    EXPECT_EQ(chosenWith("cs"), AppLanguage::cs);
    EXPECT_EQ(chosenWith("fr"), AppLanguage::en);
    EXPECT_EQ(preferenceString(store, "appLanguage"), "de");
}

TEST_F(LocalizationTest, AStoredObjectThatIsNoTextCountsAsNothingStored) {
    store.set("appLanguage", true);
    EXPECT_EQ(chosenWith("cs"), AppLanguage::cs);
}

TEST_F(LocalizationTest, PickingALanguageStoresItEvenWhenItIsTheSame) {
    LocalizationManager manager(store, "cs");
    manager.setLanguage(AppLanguage::cs);
    EXPECT_EQ(store.writes, 1);
    EXPECT_EQ(preferenceString(store, "appLanguage"), "cs");
    manager.setLanguage(AppLanguage::cs);
    EXPECT_EQ(store.writes, 2);
    manager.setLanguage(AppLanguage::en);
    EXPECT_EQ(preferenceString(store, "appLanguage"), "en");
}

TEST_F(LocalizationTest, ObserversAreToldBeforeTheChangeAndBeforeItIsStored) {
    LocalizationManager manager(store, "cs");
    std::vector<AppLanguage> before;
    const auto subscription = manager.publishedLanguage().observeWillChange([&] {
        before.push_back(manager.language());
        EXPECT_EQ(store.writes, 0);
    });
    manager.setLanguage(AppLanguage::en);
    EXPECT_EQ(before, (std::vector{AppLanguage::cs}));
    EXPECT_EQ(manager.language(), AppLanguage::en);
}

TEST_F(LocalizationTest, ATextIsPickedByTheLanguageOfTheMoment) {
    LocalizationManager manager(store, "cs");
    EXPECT_EQ(manager.t(memory), "Paměť");
    manager.setLanguage(AppLanguage::en);
    EXPECT_EQ(manager.t(memory), "Memory");
}

TEST_F(LocalizationTest, AnEmptyMemberIsReturnedAsItIs) {
    LocalizationManager manager(store, "cs");
    EXPECT_EQ(manager.t({.cs = "", .en = "Memory"}), "");
    EXPECT_EQ(manager.t({.cs = " a \n", .en = ""}), " a \n");
}

TEST_F(LocalizationTest, APairMayBeBuiltWithAValueInserted) {
    const LocalizationManager manager(store, "en");
    EXPECT_EQ(manager.t({std::string("Jader: ") + "8", std::string("Cores: ") + "8"}), "Cores: 8");
}

TEST_F(LocalizationTest, TheSharedInstanceIsTheInstalledOne) {
    LocalizationManager manager(store, "cs");
    LocalizationManager second(store, "en");
    const SharedInstance<LocalizationManager> door(manager);
    EXPECT_EQ(&LocalizationManager::shared(), &manager);
    EXPECT_EQ(second.t(memory), "Memory");
}

} // namespace
} // namespace tarvo
