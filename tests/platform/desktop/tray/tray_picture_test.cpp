#include "platform/desktop/tray/tray_picture.h"

#include "support/fake_status_item_model.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class TrayPictureTest : public testing::Test {
protected:
    QImage draw(TrayTraits traits = {}, double ratio = 1) {
        return TrayPicture(traits, fonts, symbols).draw(model.shown, ratio);
    }
    /// Pixels that differ from the bare plate.
    int inked(const QImage& image) const {
        int count = 0;
        for (int y = 4; y < image.height() - 4; ++y) {
            for (int x = 1; x < image.width() - 1; ++x)
                count += image.pixel(x, y) == image.pixel(1, 11) ? 0 : 1;
        }
        return count;
    }

    BarFonts fonts;
    SymbolImages symbols;
    FakeStatusItemModel model;
};

TEST_F(TrayPictureTest, IsSquareForTraysThatSqueeze) {
    model.setTitle("CPU 23% · RAM 48%");
    EXPECT_EQ(draw().size(), QSize(22, 22));
    EXPECT_EQ(draw({}, 2).size(), QSize(44, 44));
    EXPECT_GT(inked(draw()), 30);
}

TEST_F(TrayPictureTest, IsAsWideAsTheTextForTraysThatKeepTheAspect) {
    model.setTitle("CPU 23% · RAM 48%");
    const QImage image = draw({.keepsAspect = true, .showsLabel = false, .reversed = false});
    EXPECT_EQ(image.height(), 22);
    EXPECT_GT(image.width(), 80);
}

TEST_F(TrayPictureTest, ShowsAnotherPictureForAnotherValue) {
    model.setTitle("CPU 23% · RAM 48%");
    const QImage before = draw();
    model.setTitle("CPU 24% · RAM 48%");
    EXPECT_NE(draw(), before);
}

TEST_F(TrayPictureTest, ASymbolStandsOverItsValue) {
    model.shown.image = SymbolImage{"cpu.fill", "CPU", true};
    const QImage symbolAlone = draw();
    model.setTitle("23%");
    EXPECT_NE(draw(), symbolAlone);
    EXPECT_GT(inked(draw()), 30);
}

TEST_F(TrayPictureTest, TheTintColoursTheSymbol) {
    model.shown.image = SymbolImage{"gauge.with.dots.needle.67percent", "Tarvo", true};
    const QImage plain = draw();
    model.shown.tint = SystemColor::red;
    EXPECT_NE(draw(), plain);
}

TEST_F(TrayPictureTest, TheGraphIsRedrawnSquareWithItsNewestPart) {
    model.shown.image = LineDrawing{34, 18, {{SystemColor::blue, 1.4, {{0, 1}, {10, 1}}}}};
    const QImage oldest = draw();
    EXPECT_EQ(oldest.size(), QSize(22, 22));
    EXPECT_EQ(inked(oldest), 0) << "what is older than the square is wide is cut";
    model.shown.image = LineDrawing{34, 18, {{SystemColor::blue, 1.4, {{24, 9}, {34, 9}}}}};
    EXPECT_GT(inked(draw()), 5);
}

TEST_F(TrayPictureTest, WhereTheTrayShowsTheTextThePictureDoesNot) {
    const TrayTraits labelled{.keepsAspect = false, .showsLabel = true, .reversed = false};
    model.setTitle("CPU 23%");
    const QImage before = draw(labelled);
    model.setTitle("CPU 99%");
    EXPECT_EQ(draw(labelled), before);
    EXPECT_GT(inked(before), 30);
}

TEST(TrayTraits, KnowsWhatTraysDoWithAPicture) {
    EXPECT_TRUE(trayTraits("waybar").keepsAspect);
    EXPECT_TRUE(trayTraits("gnome-shell").showsLabel);
    EXPECT_EQ(trayTraits("some-panel"), TrayTraits{});
    EXPECT_EQ(trayTraits(""), TrayTraits{});
}

TEST(TrayTraits, RecognisesThePluginProcessOfXfcesPanel) {
    for (const char* name : {"xfce4-panel", "panel-2-systray", "panel-14-systra", "panel-123-systr"})
        EXPECT_TRUE(trayTraits(name).reversed) << name;
    for (const char* name :
         {"panel-2-clock", "panel-systray", "panel-2-sys", "panel-2", "panel-", "panel-14-systraz"})
        EXPECT_EQ(trayTraits(name), TrayTraits{}) << name;
}

} // namespace
} // namespace tarvo::desktop
