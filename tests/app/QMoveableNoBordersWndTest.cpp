#include "ui/QMoveableNoBordersWnd.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace {

constexpr int kTitle = 40;

class QMoveableNoBordersWndTest : public testing::Test {
protected:
    QMoveableNoBordersWndTest()
    {
        m_window.resize(300, 200);
        m_window.move(100, 100);
        m_window.setTitleHeight(kTitle);
    }

    // Drags from a point of the window by (30, 20) and tells where the window is then.
    QPoint drag(const QPoint &from, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, from, button, button);
        send(QEvent::MouseMove, from + QPoint(30, 20), Qt::NoButton, button);
        send(QEvent::MouseButtonRelease, from, button, Qt::NoButton);
        return m_window.pos();
    }
    void send(QEvent::Type type, const QPoint &local, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, local, QPointF(local + QPoint(100, 100)), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &event);
    }

    QMoveableNoBordersWnd m_window;
};

TEST_F(QMoveableNoBordersWndTest, APressAtTheTitleHeightStartsAMove)
{
    EXPECT_EQ(drag({10, kTitle}), QPoint(130, 120));
}

TEST_F(QMoveableNoBordersWndTest, APressOnePixelBelowDoesNot)
{
    EXPECT_EQ(drag({10, kTitle + 1}), QPoint(100, 100));
}

TEST_F(QMoveableNoBordersWndTest, OnlyTheLeftButtonMoves)
{
    EXPECT_EQ(drag({10, 5}, Qt::RightButton), QPoint(100, 100));
}

TEST_F(QMoveableNoBordersWndTest, AfterTheReleaseTheWindowStays)
{
    drag({10, 5});
    send(QEvent::MouseMove, {200, 150}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(m_window.pos(), QPoint(130, 120));
}

} // namespace
