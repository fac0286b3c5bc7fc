#include "ui/detail_fixture.h"
#include "ui/press.h"
#include "ui/sections/network_section.h"
#include "ui/sections/processes_section.h"
#include "ui/shown_texts.h"
#include "ui/table_texts.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;

struct TableSectionsTest : ::testing::Test {
    template <typename SectionType>
    std::unique_ptr<SectionType> open() {
        auto section = std::make_unique<SectionType>(context, nullptr);
        section->resize(760, 600);
        section->show();
        QApplication::processEvents();
        return section;
    }
    void settle() {
        parts.dispatcher.runAll();
        QApplication::processEvents();
    }
    static std::string column(const TableSection& section, int number) {
        return columnText(*static_cast<RecordTableModel*>(section.table().model()), number);
    }

    DetailParts parts;
    DetailContext context = parts.detail();
};

} // namespace

TEST_F(TableSectionsTest, ProcessesAreListedWhenTheSectionAppearsHeaviestFirst) {
    const auto section = open<ProcessesSection>();
    EXPECT_TRUE(section->isLoading());
    EXPECT_EQ(section->table().model()->rowCount(), 0);
    settle();
    EXPECT_FALSE(section->isLoading());
    EXPECT_EQ(column(*section, ProcessTableModel::nameColumn), "Firefox,gnome-shell,clangd");
    EXPECT_THAT(shownTexts(*section), HasSubstr("Processes"));
}

TEST_F(TableSectionsTest, ASearchInCapitalsFindsANameInMixedCase) {
    const auto section = open<ProcessesSection>();
    settle();
    section->search().setText(QStringLiteral("FIREFOX"));
    EXPECT_EQ(column(*section, ProcessTableModel::nameColumn), "Firefox");
    section->search().clear();
    EXPECT_EQ(section->table().model()->rowCount(), 3);
}

TEST_F(TableSectionsTest, AButtonInTheSearchEmptiesItWhileThereIsSomethingInIt) {
    const auto section = open<ProcessesSection>();
    settle();
    EXPECT_EQ(buttonNamed(*section, "Clear"), nullptr);
    section->search().setText(QStringLiteral("fire"));
    ASSERT_NE(buttonNamed(*section, "Clear"), nullptr);
    EXPECT_TRUE(section->search().rect().contains(buttonNamed(*section, "Clear")->geometry()));
    buttonNamed(*section, "Clear")->click();
    EXPECT_TRUE(section->search().text().isEmpty());
    EXPECT_EQ(buttonNamed(*section, "Clear"), nullptr);
    EXPECT_EQ(section->table().model()->rowCount(), 3);
    section->search().setText(QStringLiteral("fire"));
    parts.loc.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    EXPECT_NE(buttonNamed(*section, "Vymazat"), nullptr);
}

TEST_F(TableSectionsTest, ASearchHoldsForTheNextListing) {
    const auto section = open<ProcessesSection>();
    settle();
    section->search().setText(QStringLiteral("clang"));
    parts.processes.push_back({9002, "clang++", 1, 1});
    buttonNamed(*section, "Refresh")->click();
    settle();
    EXPECT_EQ(column(*section, ProcessTableModel::nameColumn), "clangd,clang++");
}

TEST_F(TableSectionsTest, TheButtonOfARowAsksToEndItsProcess) {
    const auto section = open<ProcessesSection>();
    settle();
    section->table().selectRow(1);
    pressKey(section->table(), Qt::Key_Delete);
    EXPECT_EQ(parts.asked, (std::vector<std::string>{"kill 77"}));
}

TEST_F(TableSectionsTest, AnEndedProcessGoesFromTheList) {
    const auto section = open<ProcessesSection>();
    settle();
    parts.processes.erase(parts.processes.begin());
    parts.notifications.post(processListChanged);
    settle();
    EXPECT_EQ(column(*section, ProcessTableModel::nameColumn), "gnome-shell,clangd");
}

TEST_F(TableSectionsTest, AnEndedProcessIsNotedWhileTheListIsBeingRead) {
    const auto section = open<ProcessesSection>();
    parts.dispatcher.runBackground(); // read, not published yet
    parts.processes.erase(parts.processes.begin());
    parts.notifications.post(processListChanged);
    settle();
    EXPECT_EQ(column(*section, ProcessTableModel::nameColumn), "gnome-shell,clangd");
}

TEST_F(TableSectionsTest, TextsFollowTheLanguage) {
    const auto section = open<ProcessesSection>();
    settle();
    EXPECT_EQ(section->search().placeholderText().toStdString(), "Search processes…");
    parts.loc.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    EXPECT_EQ(section->search().placeholderText().toStdString(), "Hledat proces…");
    EXPECT_THAT(shownTexts(*section), HasSubstr("Procesy"));
    EXPECT_NE(buttonNamed(*section, "Obnovit"), nullptr);
    const auto* model = section->table().model();
    EXPECT_EQ(model->headerData(3, Qt::Horizontal).toString().toStdString(), "Paměť %");
}

TEST_F(TableSectionsTest, KeysLeadFromTheSearchToTheTableAndBack) {
    const auto section = open<ProcessesSection>();
    settle();
    section->activateWindow();
    pressKey(section->search(), Qt::Key_Down);
    EXPECT_EQ(section->table().currentIndex().row(), 0);
    QKeyEvent find(QEvent::KeyPress, Qt::Key_F, Qt::ControlModifier);
    QApplication::sendEvent(section.get(), &find);
    EXPECT_EQ(section->focusWidget(), &section->search());
    section->search().setText(QStringLiteral("x"));
    pressKey(section->search(), Qt::Key_Escape);
    EXPECT_TRUE(section->search().text().isEmpty());
    QKeyEvent refresh(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier);
    QApplication::sendEvent(section.get(), &refresh);
    EXPECT_TRUE(section->isLoading());
    settle();
}

TEST_F(TableSectionsTest, ConnectionsAreFetchedAndShownByProcess) {
    const auto section = open<NetworkSection>();
    EXPECT_TRUE(section->isLoading());
    settle();
    EXPECT_EQ(column(*section, ConnectionTableModel::processColumn), "avahi-daemon,firefox,firefox,sshd");
    EXPECT_THAT(shownTexts(*section), HasSubstr("Network"));
    parts.loc.setLanguage(AppLanguage::cs);
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Network")); // the same in both languages
}

TEST_F(TableSectionsTest, ConnectionsThatArriveAfterClosingAreDropped) {
    open<NetworkSection>();
    open<ProcessesSection>();
    settle();
    EXPECT_EQ(parts.loads, 2);
}

} // namespace tarvo::ui
