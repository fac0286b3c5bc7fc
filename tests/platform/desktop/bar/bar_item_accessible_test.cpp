#include "platform/desktop/bar/bar_host.h"

#include "support/fake_status_item_model.h"

#include <QAccessible>

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;

class BarItemAccessibleTest : public testing::Test {
protected:
    QAccessibleInterface& accessible() const {
        return *QAccessible::queryAccessibleInterface(host.window().findChild<BarItemView*>());
    }
    std::string name() const { return accessible().text(QAccessible::Name).toStdString(); }

    SymbolImages symbols;
    BarHost host{symbols, [] {}};
    FakeStatusItemModel model;
    std::unique_ptr<HostedItem> item = host.realise(model);
};

TEST_F(BarItemAccessibleTest, IsAButtonNamedAfterItsText) {
    model.setTitle("CPU 23% · RAM 48%");
    model.shown.toolTip = "CPU: 23%\nMemory: 48%";
    EXPECT_EQ(accessible().role(), QAccessible::Button);
    EXPECT_EQ(name(), "CPU 23% · RAM 48%");
    EXPECT_EQ(accessible().text(QAccessible::Description), "CPU: 23%\nMemory: 48%");
}

TEST_F(BarItemAccessibleTest, NamesTheModuleAndItsValue) {
    model.shown.image = SymbolImage{"memorychip.fill", "Paměť", true};
    model.setTitle("48%");
    EXPECT_EQ(name(), "Paměť 48%");
}

TEST_F(BarItemAccessibleTest, SaysAStackedLabelOnce) {
    model.shown.image = SymbolImage{"memorychip.fill", "Paměť", true};
    model.setTitle("PAMĚŤ\n48%");
    EXPECT_EQ(name(), "Paměť 48%");
}

TEST_F(BarItemAccessibleTest, AGraphHasTheProgramsName) {
    model.shown.image = LineDrawing{34, 18, {}};
    model.setTitle("");
    EXPECT_EQ(name(), "Tarvo");
}

TEST_F(BarItemAccessibleTest, CanBePressedAndAskedForItsMenu) {
    auto* actions = accessible().actionInterface();
    ASSERT_NE(actions, nullptr);
    ASSERT_EQ(actions->actionNames(), (QStringList{QAccessibleActionInterface::pressAction(),
                                                   QAccessibleActionInterface::showMenuAction()}));
    for (const QString& action : actions->actionNames())
        actions->doAction(action);
    EXPECT_THAT(model.clicks, ElementsAre(StatusClick::left, StatusClick::right));
}

TEST_F(BarItemAccessibleTest, AnItemThatIsGoneSaysNothing) {
    QAccessibleInterface& view = accessible();
    model.setTitle("CPU 23%");
    item.reset();
    EXPECT_EQ(view.text(QAccessible::Name), "");
    view.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(model.clicks.empty());
}

} // namespace
} // namespace tarvo::desktop
