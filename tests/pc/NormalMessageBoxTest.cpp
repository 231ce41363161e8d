#include "dialogs/NormalMessageBox.h"

#include "core/ApplicationInfoManager.h"
#include "dialogs/MessageText.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

QLabel *label(const NormalMessageBox &box, const char *name)
{
    return box.findChild<QLabel *>(QLatin1String(name));
}

QPushButton *closeButton(const NormalMessageBox &box)
{
    return box.findChild<QPushButton *>(QStringLiteral("windowCloseButton"));
}

// Runs a box and does something once it is open.
template<class Action>
int runWith(NormalMessageBox &box, Action action)
{
    QTimer::singleShot(0, &box, action);
    return box.exec();
}

QRect placeIn(const QWidget &window, const QWidget *part)
{
    return {part->mapTo(&window, QPoint(0, 0)), part->size()};
}

} // namespace

TEST(NormalMessageBoxTest, ShowsTheProductNameAndHidesTheHeadUntilItHasAText)
{
    NormalMessageBox box;
    EXPECT_EQ(label(box, "dialogTitle")->text(), "Quorin Player 6");
    EXPECT_EQ(box.windowTitle(), "Quorin Player 6");
    EXPECT_TRUE(label(box, "messageHead")->isHidden());
    box.setHeadText("Failed to play back the disc.");
    EXPECT_FALSE(label(box, "messageHead")->isHidden());
    EXPECT_EQ(label(box, "messageHead")->text(), "Failed to play back the disc.");
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(box.windowType(), Qt::Dialog);
}

TEST(NormalMessageBoxTest, IsAtLeast550By220)
{
    NormalMessageBox box;
    EXPECT_EQ(box.minimumSize(), QSize(550, 220));
    box.setText("Short.");
    box.addButton("OK");
    box.show();
    EXPECT_EQ(box.size(), QSize(550, 220));
}

TEST(NormalMessageBoxTest, ResultIsNoButtonAtFirst)
{
    NormalMessageBox box;
    EXPECT_EQ(box.result(), -1);
}

TEST(NormalMessageBoxTest, ButtonsHaveIdsFrom100On)
{
    NormalMessageBox box;
    EXPECT_EQ(box.addButton("One"), 100);
    EXPECT_EQ(box.addButton("Two"), 101);
    EXPECT_EQ(box.addButton(
                  "Three", [](NormalMessageBox *) {}, false),
              102);
    EXPECT_EQ(box.button(101)->text(), "Two");
    EXPECT_EQ(box.button(101)->property("buttonId").toInt(), 101);
    EXPECT_EQ(box.button(99), nullptr);
}

TEST(NormalMessageBoxTest, ButtonWithoutCallbackEndsTheBoxWithItsId)
{
    NormalMessageBox box;
    box.addButton("One");
    const int second = box.addButton("Two", {}, false);
    EXPECT_EQ(runWith(box, [&] { box.button(second)->click(); }), 101);
    EXPECT_EQ(box.result(), 101);
}

TEST(NormalMessageBoxTest, CallbackRunsBeforeTheBoxEnds)
{
    NormalMessageBox box;
    NormalMessageBox *given = nullptr;
    bool wasOpen = false;
    int resultThen = 0;
    const int id = box.addButton("Go", [&](NormalMessageBox *self) {
        given = self;
        wasOpen = self->isVisible();
        resultThen = self->result();
    });
    QSignalSpy finished(&box, &QDialog::finished);
    EXPECT_EQ(runWith(box, [&] { box.button(id)->click(); }), id);
    EXPECT_EQ(given, &box);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(resultThen, id);
    EXPECT_EQ(finished.count(), 1);
}

TEST(NormalMessageBoxTest, CallbackWithCloseAfterFalseLeavesTheBoxOpen)
{
    NormalMessageBox box;
    int calls = 0;
    const int id = box.addButton(
        "Again", [&](NormalMessageBox *) { ++calls; }, false);
    box.show();
    box.button(id)->click();
    box.button(id)->click();
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(box.result(), id);
}

TEST(NormalMessageBoxTest, ClosingWithTheCloseButtonLeavesNoResult)
{
    NormalMessageBox box;
    box.addButton("OK");
    EXPECT_EQ(runWith(box, [&] { closeButton(box)->click(); }), -1);
    EXPECT_EQ(box.result(), -1);
}

TEST(NormalMessageBoxTest, ClosingAfterAButtonThatLeftItOpenLeavesNoResult)
{
    NormalMessageBox box;
    const int id = box.addButton(
        "Look", [](NormalMessageBox *) {}, false);
    runWith(box, [&] {
        box.button(id)->click();
        closeButton(box)->click();
    });
    EXPECT_EQ(box.result(), -1);
}

TEST(NormalMessageBoxTest, EscapeAndTheWindowSystemCloseLikeTheCloseButton)
{
    NormalMessageBox box;
    box.addButton("OK");
    EXPECT_EQ(runWith(box, [&] { QTest::keyClick(&box, Qt::Key_Escape); }), -1);
    EXPECT_EQ(runWith(box, [&] { box.close(); }), -1);
    EXPECT_EQ(box.result(), -1);
}

TEST(NormalMessageBoxTest, CallbackMayCloseTheBoxItself)
{
    NormalMessageBox box;
    const int id = box.addButton("Close", [](NormalMessageBox *self) { self->close(); });
    QSignalSpy finished(&box, &QDialog::finished);
    EXPECT_EQ(runWith(box, [&] { box.button(id)->click(); }), -1);
    EXPECT_EQ(finished.count(), 1);
}

TEST(NormalMessageBoxTest, CallbackMayDeleteTheBox)
{
    auto *box = new NormalMessageBox;
    const int id = box->addButton("Delete", [](NormalMessageBox *self) { delete self; });
    box->show();
    QPointer<NormalMessageBox> alive(box);
    QPushButton *button = box->button(id);
    // A click on a button that is deleted in it is Qt's own guarded case.
    button->click();
    EXPECT_TRUE(alive.isNull());
}

TEST(NormalMessageBoxTest, CheckBoxTellsItsStateAndCanBeHidden)
{
    NormalMessageBox box;
    auto *check = box.findChild<QCheckBox *>();
    EXPECT_EQ(check->text(), "Don't show again");
    EXPECT_FALSE(box.isCheckBoxChecked());
    check->setChecked(true);
    EXPECT_TRUE(box.isCheckBoxChecked());
    box.setCheckBoxText("Also delete the file from disk.");
    EXPECT_EQ(check->text(), "Also delete the file from disk.");
    box.setCheckBoxHidden(true);
    EXPECT_TRUE(check->isHidden());
}

TEST(NormalMessageBoxTest, EnterPressesTheLastButtonUnlessAnotherIsTheDefault)
{
    NormalMessageBox box;
    box.addButton("One");
    const int second = box.addButton("Two");
    EXPECT_EQ(runWith(box, [&] { QTest::keyClick(&box, Qt::Key_Return); }), second);

    NormalMessageBox other;
    const int first = other.addButton("One");
    other.addButton("Two");
    other.setDefaultButton(first);
    EXPECT_EQ(runWith(other, [&] { QTest::keyClick(&other, Qt::Key_Return); }), first);
}

TEST(NormalMessageBoxTest, DefaultButtonStandsAtTheEndOfTheRowAndHasTheFocus)
{
    NormalMessageBox box;
    const int first = box.addButton("One");
    const int second = box.addButton("Two");
    box.setDefaultButton(first);
    box.show();
    EXPECT_GT(box.button(first)->x(), box.button(second)->x());
    EXPECT_EQ(box.focusWidget(), box.button(first));
}

TEST(NormalMessageBoxTest, TabWalksFromTheCheckBoxThroughTheButtonsAsTheyStand)
{
    NormalMessageBox box;
    box.setText("Text");
    const int first = box.addButton("One");
    const int second = box.addButton("Two");
    box.show();
    // The shadow comes after the box, and on this platform every new window becomes the active one.
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    QCoreApplication::processEvents();
    box.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    auto *check = box.findChild<QCheckBox *>();
    check->setFocus();
    QTest::keyClick(check, Qt::Key_Tab);
    EXPECT_EQ(box.focusWidget(), box.button(first));
    QTest::keyClick(box.button(first), Qt::Key_Tab);
    EXPECT_EQ(box.focusWidget(), box.button(second));
    QTest::keyClick(box.button(second), Qt::Key_Tab);
    EXPECT_EQ(box.focusWidget(), check);
}

TEST(NormalMessageBoxTest, LongTextsWrapAndTheBoxGrows)
{
    NormalMessageBox box;
    box.addButton("OK");
    box.setText(QStringLiteral("word ").repeated(120));
    box.show();
    EXPECT_GT(box.height(), 220);
    auto *text = box.findChild<MessageText *>();
    EXPECT_GE(text->height(), text->heightFor(text->viewport()->width()));
    const int tall = box.height();
    box.setText("Short.");
    EXPECT_LT(box.height(), tall);
}

TEST(NormalMessageBoxTest, PathOf4000CharactersKeepsTheButtonsOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QString path = QStringLiteral("/films/") + QString(4000, QLatin1Char('W')) + QStringLiteral(".mkv");
    for (const bool isRich : {false, true}) {
        NormalMessageBox box;
        box.setText(
            isRich ? QStringLiteral("<p style=\"line-height:120%\">The file is unavailable.<br /><br />%1<p>")
                         .arg(path)
                   : path);
        const int id = box.addButton("Retry");
        box.show();
        EXPECT_LE(box.height(), screen.height()) << isRich;
        EXPECT_LE(box.width(), screen.width()) << isRich;
        EXPECT_TRUE(box.rect().contains(placeIn(box, box.button(id)))) << isRich;
        auto *text = box.findChild<MessageText *>();
        EXPECT_GT(text->verticalScrollBar()->maximum(), 0) << isRich;
        EXPECT_EQ(text->horizontalScrollBar()->maximum(), 0) << isRich;
        EXPECT_TRUE(text->toPlainText().contains(path)) << isRich;
        EXPECT_NE(text->focusPolicy() & Qt::TabFocus, 0) << isRich;
    }
}

TEST(NormalMessageBoxTest, TextNeverOverlapsTheButtons)
{
    for (const int words : {1, 20, 80, 300, 2000}) {
        NormalMessageBox box;
        box.setHeadText("Head");
        box.setText(QStringLiteral("word ").repeated(words));
        const int id = box.addButton("OK");
        box.show();
        const QRect text = placeIn(box, box.findChild<MessageText *>());
        const QRect button = placeIn(box, box.button(id));
        EXPECT_LT(text.bottom(), button.top()) << words;
        EXPECT_GT(text.top(), placeIn(box, label(box, "messageHead")).bottom()) << words;
        EXPECT_LE(button.bottom(), box.rect().bottom()) << words;
    }
}

TEST(NormalMessageBoxTest, EverythingScalesWithTheDisplay)
{
    ApplicationInfoManager::instance()->setScreenDpi(192);
    {
        NormalMessageBox box;
        EXPECT_EQ(box.minimumSize(), QSize(1100, 440));
        const int id = box.addButton("OK");
        box.show();
        EXPECT_GE(box.button(id)->height(), 72);
    }
    ApplicationInfoManager::instance()->setScreenDpi(96);
}

TEST(NormalMessageBoxTest, IsReadableForScreenReaders)
{
    NormalMessageBox box;
    box.setText("<b>The disc</b> is gone.");
    EXPECT_EQ(box.accessibleName(), "Quorin Player 6");
    EXPECT_EQ(box.accessibleDescription(), "The disc is gone.");
    EXPECT_EQ(closeButton(box)->accessibleName(), "Close");
}

TEST(NormalMessageBoxTest, TitleAreaMovesTheBox)
{
    NormalMessageBox box;
    box.show();
    box.move(100, 100);
    QTest::mousePress(&box, Qt::LeftButton, {}, {60, 20});
    QMouseEvent move(QEvent::MouseMove, QPointF(90, 35), box.pos() + QPoint(90, 35), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(&box, &move);
    EXPECT_EQ(box.pos(), QPoint(130, 115));
}
