#include "dialogs/NormalLoadingDlg.h"
#include "dialogs/NormalWaitingDlg.h"
#include "ui/AnimationWaittingBar.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(NormalLoadingDlgTest, SaysLoadingOnADarkTranslucentGround)
{
    NormalLoadingDlg dialog;
    EXPECT_EQ(dialog.findChild<QLabel *>()->text(), "Loading ...");
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    dialog.setAttribute(Qt::WA_TranslucentBackground);
    dialog.show();
    QImage drawn(dialog.size(), QImage::Format_ARGB32);
    drawn.fill(Qt::transparent);
    dialog.render(&drawn, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(drawn.pixelColor(dialog.width() / 2, 6), QColor(QStringLiteral("#af000000")));
}

TEST(NormalLoadingDlgTest, MovesOnlyWhileItIsShown)
{
    NormalLoadingDlg dialog;
    auto *bar = dialog.findChild<AnimationWaittingBar *>();
    EXPECT_FALSE(bar->isRunning());
    dialog.show();
    EXPECT_TRUE(bar->isRunning());
    dialog.hide();
    EXPECT_FALSE(bar->isRunning());
}

TEST(NormalWaitingDlgTest, CancelOnlyTellsTheWish)
{
    NormalWaitingDlg dialog;
    dialog.setText("Submitting your message.");
    EXPECT_EQ(dialog.text(), "Submitting your message.");
    dialog.show();
    QSignalSpy cancel(&dialog, &NormalWaitingDlg::signal_cancelClicked);
    QSignalSpy close(&dialog, &NormalWaitingDlg::signal_closeClicked);
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == QLatin1String("Cancel"))
            button->click();
    }
    EXPECT_EQ(cancel.count(), 1);
    EXPECT_EQ(close.count(), 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST(NormalWaitingDlgTest, EveryWayOfClosingIsTold)
{
    NormalWaitingDlg dialog;
    QSignalSpy close(&dialog, &NormalWaitingDlg::signal_closeClicked);
    dialog.show();
    dialog.findChild<QPushButton *>(QStringLiteral("windowCloseButton"))->click();
    EXPECT_EQ(close.count(), 1);
    EXPECT_FALSE(dialog.isVisible());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(close.count(), 2);
    dialog.show();
    dialog.close();
    EXPECT_EQ(close.count(), 3);
}
