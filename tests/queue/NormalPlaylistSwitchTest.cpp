#include "queue/NormalPlaylistSwitch.h"

#include "queue/NormalPlaylistView.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Switches : public testing::Test {
protected:
    Switches()
    {
        tab.resize(tab.sizeHint());
        tab.appear();
    }

    NormalPlaylistSwitch tab;
};

} // namespace

TEST_F(Switches, AClickAsksForTheOtherState)
{
    QSignalSpy asked(&tab, &NormalPlaylistSwitch::sig_switched);
    QTest::mouseClick(&tab, Qt::LeftButton);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_TRUE(asked.at(0).at(0).toBool());
    EXPECT_FALSE(tab.isPanelOpen()) << "it shows what it is told";
    const QString closed = tab.accessibleName();
    tab.slot_setPanelOpen(true);
    EXPECT_NE(tab.accessibleName(), closed);
    QTest::mouseClick(&tab, Qt::LeftButton);
    EXPECT_FALSE(asked.at(1).at(0).toBool());
}

TEST_F(Switches, APressThatEndsElsewhereAsksNothing)
{
    QSignalSpy asked(&tab, &NormalPlaylistSwitch::sig_switched);
    QTest::mousePress(&tab, Qt::LeftButton);
    QTest::mouseRelease(&tab, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    QTest::mouseClick(&tab, Qt::RightButton);
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(Switches, GrowsUnderThePointerAndShrinksWithoutIt)
{
    const double rest = tab.opaqueShape().boundingRect().width();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&tab, &enter);
    ASSERT_EVENTUALLY(qFuzzyCompare(tab.warmth(), 1.0));
    EXPECT_GT(tab.opaqueShape().boundingRect().width(), rest);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&tab, &leave);
    ASSERT_EVENTUALLY(qFuzzyIsNull(tab.warmth()));
    EXPECT_DOUBLE_EQ(tab.opaqueShape().boundingRect().width(), rest);
}

TEST_F(Switches, IsColdWhenItComesBack)
{
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&tab, &enter);
    ASSERT_EVENTUALLY(tab.warmth() > 0.0);
    tab.disappear();
    EXPECT_EQ(tab.warmth(), 0.0);
    EXPECT_EQ(tab.animate("animate")->state(), QAbstractAnimation::Stopped);
}

TEST_F(Switches, StandsAtTheEdgeOrAtTheOpenPanel)
{
    const QRect area(0, 0, 1280, 720);
    const QRect closed = NormalPlaylistSwitch::rule(false, 1).placed(area, tab.sizeHint(), 1.0);
    const QRect open = NormalPlaylistSwitch::rule(true, 1).placed(area, tab.sizeHint(), 1.0);
    EXPECT_EQ(closed.right(), area.right());
    EXPECT_EQ(open.right(), area.right() - NormalPlaylistView::designWidth());
    EXPECT_EQ(open.top(), closed.top());
}
