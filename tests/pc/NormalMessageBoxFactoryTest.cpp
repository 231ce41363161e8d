#include "dialogs/NormalMessageBoxFactory.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

struct Seen {
    QStringList buttons; // by id
    QStringList row;     // left to right
    bool hasCheckBox{true};
};

// Does something to the box that the next factory call opens.
void withBox(const std::function<void(NormalMessageBox *)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto *box = qobject_cast<NormalMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        action(box);
    });
}

Seen look(NormalMessageBox *box)
{
    Seen seen;
    QMap<int, QString> row;
    for (int id = NormalMessageBox::FirstButtonId; QPushButton *button = box->button(id); ++id) {
        seen.buttons << button->text();
        row.insert(button->x(), button->text());
    }
    seen.row = row.values();
    seen.hasCheckBox = !box->findChild<QCheckBox *>()->isHidden();
    return seen;
}

} // namespace

TEST(NormalMessageBoxFactoryTest, NoteHasOneButtonAndNoCheckBox)
{
    Seen seen;
    withBox([&](NormalMessageBox *box) {
        seen = look(box);
        box->button(100)->click();
    });
    NormalMessageBoxFactory::showNote(nullptr, "Invalid custom shader, please check and try again.");
    EXPECT_EQ(seen.buttons, QStringList({"OK"}));
    EXPECT_FALSE(seen.hasCheckBox);
}

TEST(NormalMessageBoxFactoryTest, NoteWithActionRunsIt)
{
    Seen seen;
    bool isDone = false;
    withBox([&](NormalMessageBox *box) {
        seen = look(box);
        box->button(101)->click();
    });
    EXPECT_EQ(NormalMessageBoxFactory::showNote(nullptr, "Failure", "Feedback",
                                                [&](NormalMessageBox *) { isDone = true; }),
              101);
    EXPECT_TRUE(isDone);
    EXPECT_EQ(seen.buttons, QStringList({"OK", "Feedback"}));
    EXPECT_EQ(seen.row, QStringList({"Feedback", "OK"}));
    EXPECT_FALSE(seen.hasCheckBox);
}

TEST(NormalMessageBoxFactoryTest, NoteWithActionCanBeLeftAlone)
{
    bool isDone = false;
    withBox([](NormalMessageBox *box) { box->button(100)->click(); });
    EXPECT_EQ(NormalMessageBoxFactory::showNote(nullptr, "Failure", "Feedback",
                                                [&](NormalMessageBox *) { isDone = true; }),
              100);
    EXPECT_FALSE(isDone);
}

TEST(NormalMessageBoxFactoryTest, QuestionButtonsStandInTheSortedOrderOfTheirTexts)
{
    Seen seen;
    QString chosen;
    NormalMessageBoxFactory::Buttons buttons;
    buttons.insert("Retry", [&](NormalMessageBox *) { chosen = "Retry"; });
    buttons.insert("Delete from Library", [&](NormalMessageBox *) { chosen = "Delete"; });
    buttons.insert("Open Folder", {});
    withBox([&](NormalMessageBox *box) {
        seen = look(box);
        box->button(100)->click();
    });
    EXPECT_EQ(NormalMessageBoxFactory::showQuestion(nullptr, "The file is unavailable.", buttons), 100);
    EXPECT_EQ(chosen, "Delete");
    EXPECT_EQ(seen.buttons, QStringList({"Delete from Library", "Open Folder", "Retry"}));
    EXPECT_EQ(seen.row, seen.buttons);
}

TEST(NormalMessageBoxFactoryTest, ClosedQuestionAnswersNoButton)
{
    int calls = 0;
    withBox([](NormalMessageBox *box) { box->close(); });
    EXPECT_EQ(
        NormalMessageBoxFactory::showQuestion(nullptr, "?", {{"Yes", [&](NormalMessageBox *) { ++calls; }}}),
        -1);
    EXPECT_EQ(calls, 0);
}

TEST(NormalMessageBoxFactoryTest, CancelQuestionTakesTheActionOrNot)
{
    int calls = 0;
    const NormalMessageBox::Callback action = [&](NormalMessageBox *) { ++calls; };
    Seen seen;
    withBox([&](NormalMessageBox *box) {
        seen = look(box);
        box->button(101)->click();
    });
    EXPECT_FALSE(NormalMessageBoxFactory::showCancelQuestion(nullptr, "Build a library?", "Add Now", action));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(seen.buttons, QStringList({"Add Now", "Cancel"}));
    withBox([](NormalMessageBox *box) { box->button(100)->click(); });
    EXPECT_TRUE(NormalMessageBoxFactory::showCancelQuestion(nullptr, "Build a library?", "Add Now", action));
    EXPECT_EQ(calls, 1);
}
