// The forms of the bar of controls, with and without a compositor.
#include "OperateBar.h"

#include "ui/OverlayHost.h"

TEST_F(OperateBars, ClicksAboveTheControlsBelongToThePicture)
{
    EXPECT_FALSE(bar.takesMouseAt(QPoint(600, 5)));
    EXPECT_TRUE(bar.takesMouseAt(QPoint(600, 95)));
    EXPECT_TRUE(bar.takesMouseAt(bar.progressBar()->geometry().center()));
}

TEST_F(OperateBars, TheCompactFormIsOpaqueAndHoldsEveryControlAndTheHoverTime)
{
    play();
    bar.setCompact(true);
    const QPainterPath shape = bar.opaqueShape();
    const auto buttons = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisible()) {
            EXPECT_TRUE(shape.contains(QRectF(button->geometry()))) << qPrintable(button->objectName());
        }
    }
    EXPECT_FALSE(shape.contains(QPointF(640, 20)));
    emit bar.progressBar()->sig_mouseHoverd(QStringLiteral("00:05:00"), bar.mapToGlobal(QPoint(640, 40)));
    EXPECT_TRUE(bar.opaqueShape().contains(QPointF(640, 20)));
    emit bar.progressBar()->sig_mouseLeaved();
    EXPECT_FALSE(bar.opaqueShape().contains(QPointF(640, 20)));
}

TEST(HostedOperateBar, WithoutACompositorItIsCutToItsPanelFromTheFirstMoment)
{
    FakeCommands player;
    TestSettings settings;
    QWidget window;
    window.setGeometry(50, 50, 900, 500);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    OverlayHost host(&window);
    host.setCompositingQuery([] { return false; });
    auto *bar = new NormalOperateBar(player.commands(), *settings);
    host.add(bar, {OverlayRule::Anchor::Bottom, QMargins(), 1});
    bar->appear();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->geometry(), QRect(50, 550 - 132, 900, 132));
    const auto buttons = bar->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisible()) {
            EXPECT_TRUE(bar->mask().contains(button->geometry().center()))
                << qPrintable(button->objectName());
        }
    }
    EXPECT_TRUE(bar->mask().contains(bar->progressBar()->geometry().center()));
    EXPECT_FALSE(bar->mask().contains(QPoint(450, 5)));
    EXPECT_LT(bar->mask().boundingRect().right(), 900);
}

TEST_F(OperateBars, ABarOfAnyWidthCanBeShown)
{
    for (const int width : {1, 40, 200, 400, 640, 3840}) {
        bar.resize(width, 132);
        EXPECT_FALSE(bar.grab().isNull());
    }
}
