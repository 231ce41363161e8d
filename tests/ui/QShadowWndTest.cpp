#include "ui/QShadowWnd.h"

#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

class Content final : public QWidget {
public:
    int wheels{0};

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ++wheels;
        event->accept();
    }
};

} // namespace

TEST(QShadowWndTest, LiesAroundItsContentWhenItIsShown)
{
    Content content;
    content.setGeometry(300, 200, 640, 360);
    content.show();
    QShadowWnd shadow(&content);
    shadow.show();
    EXPECT_EQ(shadow.pos(), content.mapToGlobal(QPoint(0, 0)) - QPoint(36, 21));
    EXPECT_EQ(shadow.size(), QSize(640 + 72, 360 + 72));
    shadow.slot_updatePosition({500, 400});
    EXPECT_EQ(shadow.pos(), QPoint(464, 379));
}

TEST(QShadowWndTest, FixedPositionDoesNotFollow)
{
    Content content;
    content.setGeometry(300, 200, 640, 360);
    QShadowWnd shadow(&content);
    shadow.setFixedPosition(true);
    shadow.setGeometry(10, 20, 30, 40);
    shadow.show();
    EXPECT_EQ(shadow.geometry(), QRect(10, 20, 30, 40));
}

TEST(QShadowWndTest, WheelGoesToTheContent)
{
    Content content;
    content.show();
    QShadowWnd shadow(&content);
    shadow.show();
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&shadow, &event);
    EXPECT_EQ(content.wheels, 1);
}
