// Tool tips, names and the keyboard on the bar of controls.
#include "OperateBar.h"

#include "keys/KeyOperateType.h"

#include <QApplication>

TEST_F(OperateBars, TipsAndKeysStandInTheButtonsProperties)
{
    const struct {
        Button button;
        const char *tip;
        int hotKey;
    } rows[] = {
        {Button::Play, "Play / Pause", KeyOperate_PlayPause},
        {Button::Pause, "Play / Pause", KeyOperate_PlayPause},
        {Button::Stop, "Stop", KeyOperate_Stop},
        {Button::Rewind, "Rewind", KeyOperate_Rewind},
        {Button::Fast, "Fast forward", KeyOperate_FastForward},
        {Button::NextChapter, "Next", KeyOperate_NextChapter},
        {Button::LastChapter, "Previous ", KeyOperate_PreviousChapter},
        {Button::Volume, "Mute / Mute off", KeyOperate_Mute},
        {Button::Mute, "Mute / Mute off", KeyOperate_Mute},
        {Button::PreviousFrame, "Previous Frame", KeyOperate_PreviousFrame},
        {Button::NextFrame, "Next Frame", KeyOperate_NextFrame},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(bar.button(row.button)->property("tip").toString(), row.tip);
        EXPECT_EQ(bar.button(row.button)->property("hotKey").toInt(), row.hotKey) << row.tip;
    }
}

TEST_F(OperateBars, AToolTipFollowsAChangedKeyMap)
{
    QMap<int, QString> keys{{KeyOperate_Stop, QStringLiteral("Ctrl+S")}};
    bar.setKeyText([&keys](int operation) { return keys.value(operation); });
    const auto tipOf = [this](Button button) {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QApplication::sendEvent(bar.button(button), &enter);
        return bar.button(button)->toolTip();
    };
    EXPECT_EQ(tipOf(Button::Stop), "Stop (Ctrl+S)");
    keys[KeyOperate_Stop] = QStringLiteral("Q");
    EXPECT_EQ(tipOf(Button::Stop), "Stop (Q)");
    keys.clear();
    EXPECT_EQ(tipOf(Button::Stop), "Stop");
    EXPECT_EQ(tipOf(Button::LastChapter), "Previous");
}

TEST_F(OperateBars, EveryControlHasANameForThoseWhoCannotSeeIt)
{
    const auto buttons = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        EXPECT_FALSE(button->accessibleName().isEmpty()) << qPrintable(button->objectName());
    EXPECT_FALSE(bar.progressBar()->accessibleName().isEmpty());
    EXPECT_FALSE(bar.volumeSlider()->accessibleName().isEmpty());
}

TEST_F(OperateBars, TabWalksTheBarAndEnterPresses)
{
    play();
    QSignalSpy stop(&bar, &NormalOperateBar::sig_stopClicked);
    QSet<QWidget *> visited;
    for (int i = 0; i < 40 && bar.focusWidget() != bar.button(Button::Stop); ++i) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        EXPECT_TRUE(bar.handleKey(&tab));
        visited << bar.focusWidget();
    }
    ASSERT_EQ(bar.focusWidget(), bar.button(Button::Stop));
    EXPECT_GE(visited.size(), 4);
    EXPECT_FALSE(visited.contains(bar.button(Button::Play)));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    EXPECT_TRUE(bar.handleKey(&enter));
    EXPECT_EQ(stop.count(), 1);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(bar.handleKey(&escape));
    EXPECT_FALSE(bar.handleKey(&escape));
    EXPECT_FALSE(bar.handleKey(&enter));
    EXPECT_EQ(stop.count(), 1);
}

TEST_F(OperateBars, KeysAreTheWindowsWhileTheKeyboardIsNotOnTheBar)
{
    play();
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    EXPECT_FALSE(bar.handleKey(&right));
    EXPECT_FALSE(bar.handleKey(&space));
}
