#include "platform/desktop/qt_dialogs.h"

#include "support/qt_wait.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tarvo::desktop {
namespace {

const Alert trashQuestion{"Empty the Trash?", "This action is irreversible.", {"Empty", "Cancel"}};

class QtDialogsTest : public testing::Test {
protected:
    void show(const Alert& alert) {
        dialogs->show(alert, [this](std::size_t button) { pressed.push_back(button); });
        runPostedEvents();
    }
    static std::vector<QMessageBox*> boxes() {
        std::vector<QMessageBox*> found;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* box = qobject_cast<QMessageBox*>(widget)) found.push_back(box);
        }
        return found;
    }
    QMessageBox& box() const { return *boxes().front(); }
    static QAbstractButton* button(const QMessageBox& in, const QString& text) {
        for (QAbstractButton* each : in.buttons()) {
            if (each->text() == text) return each;
        }
        return nullptr;
    }
    // The key goes where the keyboard is, as the window system would send it.
    static void press(QMessageBox& in, Qt::Key key) {
        QWidget* target = in.focusWidget() ? in.focusWidget() : &in;
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(target, &down);
        QApplication::sendEvent(target, &up);
        runPostedEvents();
    }

    std::unique_ptr<QtDialogs> dialogs = std::make_unique<QtDialogs>();
    std::vector<std::size_t> pressed;
};

TEST_F(QtDialogsTest, ShowTheTextsAndTheButtonsOfAWarning) {
    show(trashQuestion);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_TRUE(box().isVisible());
    EXPECT_EQ(box().icon(), QMessageBox::Warning);
    EXPECT_EQ(box().text(), "Empty the Trash?");
    EXPECT_EQ(box().informativeText(), "This action is irreversible.");
    EXPECT_EQ(box().buttons().size(), 2);
    EXPECT_EQ(box().defaultButton(), button(box(), QStringLiteral("Empty")));
    EXPECT_EQ(box().escapeButton(), button(box(), QStringLiteral("Cancel")));
    EXPECT_EQ(box().windowModality(), Qt::ApplicationModal);
}

TEST_F(QtDialogsTest, DoNotWaitForTheAnswer) {
    show(trashQuestion);
    EXPECT_TRUE(pressed.empty());
    EXPECT_TRUE(box().isVisible());
}

TEST_F(QtDialogsTest, TellWhichButtonWasPressedOnce) {
    show(trashQuestion);
    button(box(), QStringLiteral("Empty"))->click();
    EXPECT_EQ(pressed, std::vector<std::size_t>{0});
    runPostedEvents();
    EXPECT_TRUE(boxes().empty());
    show(trashQuestion);
    button(box(), QStringLiteral("Cancel"))->click();
    EXPECT_EQ(pressed, (std::vector<std::size_t>{0, 1}));
}

TEST_F(QtDialogsTest, ReturnPressesTheFirstButton) {
    show(trashQuestion);
    press(box(), Qt::Key_Return);
    EXPECT_EQ(pressed, std::vector<std::size_t>{0});
    EXPECT_TRUE(boxes().empty());
}

TEST_F(QtDialogsTest, EscapePressesTheLastButton) {
    show(trashQuestion);
    press(box(), Qt::Key_Escape);
    EXPECT_EQ(pressed, std::vector<std::size_t>{1});
    show({"Three", "", {"One", "Two", "Three"}});
    press(box(), Qt::Key_Escape);
    EXPECT_EQ(pressed, (std::vector<std::size_t>{1, 2}));
}

TEST_F(QtDialogsTest, ClosingTheWindowPressesTheLastButton) {
    show(trashQuestion);
    box().close();
    EXPECT_EQ(pressed, std::vector<std::size_t>{1});
}

TEST_F(QtDialogsTest, ASingleButtonAnswersEveryKey) {
    show({"Action Failed", "no reason", {"Cancel"}});
    press(box(), Qt::Key_Escape);
    show({"Action Failed", "no reason", {"Cancel"}});
    press(box(), Qt::Key_Return);
    EXPECT_EQ(pressed, (std::vector<std::size_t>{0, 0}));
}

TEST_F(QtDialogsTest, WithoutButtonsHaveTheDesktopsOwn) {
    show({"Action Failed", "no reason", {}});
    EXPECT_EQ(box().standardButtons(), QMessageBox::Ok);
    press(box(), Qt::Key_Escape);
    EXPECT_EQ(pressed, std::vector<std::size_t>{0});
}

TEST_F(QtDialogsTest, ShowNoMarkup) {
    show({"<b>bold</b>", "<img src=x> & co (PID 7)", {"Quit", "Cancel"}});
    int labels = 0;
    for (const QLabel* label : box().findChildren<QLabel*>()) {
        if (label->text().isEmpty()) continue;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
        ++labels;
    }
    EXPECT_EQ(labels, 2);
    EXPECT_EQ(box().informativeText(), "<img src=x> & co (PID 7)");
}

TEST_F(QtDialogsTest, FitOnTheScreenWhateverTheyHaveToSay) {
    show({"Action Failed", std::string(4096, 'x'), {}});
    const QSize screen = QGuiApplication::primaryScreen()->size();
    EXPECT_LE(box().width(), screen.width());
    EXPECT_LE(box().height(), screen.height());
}

TEST_F(QtDialogsTest, StandBesideEachOther) {
    show(trashQuestion);
    show({"Action Failed", "later", {}});
    ASSERT_EQ(boxes().size(), 2U);
    for (QMessageBox* each : boxes()) {
        if (each->text() == QStringLiteral("Empty the Trash?")) each->close();
    }
    EXPECT_EQ(pressed, std::vector<std::size_t>{1});
    runPostedEvents();
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(box().informativeText(), "later");
}

TEST_F(QtDialogsTest, AnAnswerMayOpenTheNext) {
    dialogs->show(trashQuestion, [this](std::size_t) {
        dialogs->show({"Action Failed", "why", {"Cancel"}}, nullptr);
    });
    press(box(), Qt::Key_Return);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(box().text(), "Action Failed");
}

TEST_F(QtDialogsTest, GoAwayUnansweredWithTheirOwner) {
    show(trashQuestion);
    const QPointer<QMessageBox> open = &box();
    dialogs.reset();
    EXPECT_TRUE(open.isNull());
    EXPECT_TRUE(pressed.empty());
}

} // namespace
} // namespace tarvo::desktop
