#include "menubar/detail_window_controller.h"

#include "core/shared_instance.h"
#include "support/recording_application.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;

TEST(DetailWindowController, OpensOneWindowAndATaskbarEntry) {
    RecordingApplication application;
    DetailWindowController controller(application, application.windowFactory());
    controller.show();
    EXPECT_TRUE(controller.isOpen());
    EXPECT_THAT(application.log, ElementsAre("regular", "front", "activate"));
    ASSERT_EQ(application.windows.size(), 1u);
    const auto& window = application.windows[0];
    EXPECT_EQ(window.title, "Tarvo");
    EXPECT_EQ(window.width, 980);
    EXPECT_EQ(window.height, 640);
    EXPECT_EQ(window.minimumWidth, 760);
    EXPECT_EQ(window.minimumHeight, 480);
}

TEST(DetailWindowController, BringsTheOpenWindowToTheFront) {
    RecordingApplication application;
    DetailWindowController controller(application, application.windowFactory());
    controller.show();
    application.log.clear();
    controller.show();
    EXPECT_THAT(application.log, ElementsAre("regular", "front", "activate"));
    EXPECT_EQ(application.windows.size(), 1u);
}

TEST(DetailWindowController, IsAnAccessoryAgainAfterTheWindowClosed) {
    RecordingApplication application;
    DetailWindowController controller(application, application.windowFactory());
    controller.show();
    application.log.clear();
    application.closeWindow();
    EXPECT_FALSE(controller.isOpen());
    EXPECT_THAT(application.log, ElementsAre("closed", "accessory"));
    controller.show();
    EXPECT_EQ(application.windows.size(), 2u) << "a fresh one";
}

TEST(DetailWindowController, TellsWhenTheWindowOpensAndCloses) {
    RecordingApplication application;
    DetailWindowController controller(application, application.windowFactory());
    std::vector<bool> heard;
    controller.onOpenChanged = [&] { heard.push_back(controller.isOpen()); };
    controller.show();
    controller.show();
    application.closeWindow();
    EXPECT_THAT(heard, ElementsAre(true, false));
}

TEST(DetailWindowController, TheSharedInstanceIsTheInstalledOne) {
    RecordingApplication application;
    DetailWindowController controller(application, application.windowFactory());
    const SharedInstance<DetailWindowController> door(controller);
    EXPECT_EQ(&DetailWindowController::shared(), &controller);
    DetailWindowController::shared().show();
    EXPECT_TRUE(controller.isOpen());
}

TEST(DetailWindowController, ShowsNothingWithoutAWindow) {
    RecordingApplication application;
    DetailWindowController without(application, {});
    without.show();
    DetailWindowController failing(application, [](const auto&, auto) { return std::unique_ptr<Window>(); });
    failing.show();
    EXPECT_FALSE(without.isOpen());
    EXPECT_FALSE(failing.isOpen());
    EXPECT_TRUE(application.log.empty());
}

} // namespace
} // namespace tarvo
