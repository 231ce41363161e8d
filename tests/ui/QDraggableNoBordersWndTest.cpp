#include "ui/QDraggableNoBordersWnd.h"
#include "core/ApplicationInfoManager.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

using Wnd = QDraggableNoBordersWnd;

class Draggable : public testing::Test {
protected:
    void SetUp() override
    {
        ApplicationInfoManager::instance()->setScreenDpi(96);
        target.setWindowFlag(Qt::FramelessWindowHint);
        target.setGeometry(200, 100, 800, 450);
        target.show();
        helper.setMinimumSize({400, 300});
    }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    void send(QEvent::Type type, Wnd::DragMode mode, const QPoint &global)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, QPointF(), global, button, Qt::LeftButton, Qt::NoModifier);
        helper.eventFilter(helper.inner(mode), &event);
    }
    void drag(Wnd::DragMode mode, const QPoint &to)
    {
        send(QEvent::MouseButtonPress, mode, {});
        send(QEvent::MouseMove, mode, to);
        send(QEvent::MouseButtonRelease, mode, to);
    }

    QWidget target;
    Wnd helper{&target};
};

} // namespace

TEST_F(Draggable, StripsLieAroundTheTarget)
{
    const struct {
        Wnd::DragMode mode;
        QRect place;
    } rows[] = {{Wnd::Left, {195, 100, 5, 450}},     {Wnd::Right, {1000, 100, 5, 450}},
                {Wnd::Top, {200, 95, 800, 5}},       {Wnd::Bottom, {200, 550, 800, 5}},
                {Wnd::TopLeft, {195, 95, 5, 5}},     {Wnd::TopRight, {1000, 95, 5, 5}},
                {Wnd::BottomLeft, {195, 550, 5, 5}}, {Wnd::BottomRight, {1000, 550, 5, 5}}};
    for (const auto &row : rows)
        EXPECT_EQ(helper.strip(row.mode)->geometry(), row.place) << row.mode;
}

TEST_F(Draggable, LeftEdgePastTheMinimumStopsExactlyAtIt)
{
    QSignalSpy resized(&helper, &Wnd::sig_resize);
    drag(Wnd::Left, {900, 300});
    EXPECT_EQ(target.width(), 400);
    EXPECT_EQ(target.geometry().right(), 999);
    EXPECT_EQ(resized.count(), 1);
    EXPECT_EQ(helper.dragMode(), Wnd::NoDrag);
}

TEST_F(Draggable, BottomRightLeftOfTheTopLeftCornerKeepsTheMinimum)
{
    drag(Wnd::BottomRight, {10, 10});
    EXPECT_EQ(target.geometry(), QRect(200, 100, 400, 300));
}

TEST_F(Draggable, MinimumFollowsTheDisplayScale)
{
    ApplicationInfoManager::instance()->setScreenDpi(144);
    drag(Wnd::Right, {0, 0});
    EXPECT_EQ(target.width(), 600);
}

TEST_F(Draggable, EveryStripMovesItsOwnSides)
{
    const struct {
        Wnd::DragMode mode;
        QPoint to;
        QRect result;
    } rows[] = {{Wnd::BottomRight, {1105, 605}, {200, 100, 900, 500}},
                {Wnd::TopLeft, {95, 45}, {100, 50, 900, 500}},
                {Wnd::Top, {500, 45}, {200, 50, 800, 500}},
                {Wnd::TopRight, {1105, 45}, {200, 50, 900, 500}},
                {Wnd::Right, {1105, 0}, {200, 100, 900, 450}},
                {Wnd::Bottom, {0, 605}, {200, 100, 800, 500}},
                {Wnd::BottomLeft, {95, 605}, {100, 100, 900, 500}},
                {Wnd::Left, {95, 0}, {100, 100, 900, 450}}};
    for (const auto &row : rows) {
        target.setGeometry(200, 100, 800, 450);
        drag(row.mode, row.to);
        EXPECT_EQ(target.geometry(), row.result) << row.mode;
    }
}

TEST_F(Draggable, MoveWithoutAPressChangesNothing)
{
    send(QEvent::MouseMove, Wnd::Left, {10, 10});
    EXPECT_EQ(target.geometry(), QRect(200, 100, 800, 450));
}

TEST_F(Draggable, StripsHideWithTheTargetAndInFullScreen)
{
    EXPECT_TRUE(helper.strip(Wnd::Top)->isVisible());
    target.showFullScreen();
    EXPECT_FALSE(helper.strip(Wnd::Top)->isVisible());
    target.showNormal();
    EXPECT_TRUE(helper.strip(Wnd::Top)->isVisible());
    target.showMaximized();
    EXPECT_FALSE(helper.strip(Wnd::Top)->isVisible());
    target.showNormal();
    target.hide();
    EXPECT_FALSE(helper.strip(Wnd::Top)->isVisible());
}
