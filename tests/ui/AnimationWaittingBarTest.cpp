#include "ui/AnimationWaittingBar.h"

#include <QImage>
#include <QSequentialAnimationGroup>

#include <gtest/gtest.h>

namespace {

QImage pictureOf(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

bool isBlank(const QImage &image)
{
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

class Bar : public testing::Test {
protected:
    Bar() { bar.resize(200, 8); }
    AnimationWaittingBar bar;
};

} // namespace

TEST_F(Bar, StopBeforeStartDoesNothing)
{
    bar.show();
    bar.SLOT_stop();
    EXPECT_FALSE(bar.isRunning());
    EXPECT_FALSE(bar.hasAnimate("0"));
    EXPECT_TRUE(isBlank(pictureOf(bar)));
}

TEST_F(Bar, HiddenBarBuildsNothingUntilItIsShown)
{
    bar.SLOT_start();
    EXPECT_FALSE(bar.hasAnimate("0"));
    bar.show();
    for (int i = 0; i < AnimationWaittingBar::CircleCount; ++i)
        ASSERT_TRUE(bar.hasAnimate(QString::number(i))) << i;
    EXPECT_EQ(bar.animate("9")->state(), QAbstractAnimation::Running);
    bar.hide();
    EXPECT_EQ(bar.animate("9")->state(), QAbstractAnimation::Stopped);
    EXPECT_TRUE(bar.isRunning());
}

TEST_F(Bar, CirclesStartOneAfterTheOtherAndRunForEver)
{
    bar.show();
    bar.SLOT_start();
    for (int i = 0; i < AnimationWaittingBar::CircleCount; ++i) {
        auto *group = static_cast<QSequentialAnimationGroup *>(bar.animate(QString::number(i)));
        EXPECT_EQ(group->loopCount(), -1);
        EXPECT_EQ(group->animationAt(0)->duration(), 125 * i);
        EXPECT_EQ(group->animationAt(1)->duration(), 125);
        EXPECT_EQ(group->animationAt(2)->duration(), 333);
    }
}

TEST_F(Bar, DrawsItsCirclesOnlyWhileItRuns)
{
    bar.show();
    bar.SLOT_start();
    bar.animate("0")->setCurrentTime(250);
    EXPECT_GT(bar.circlePosition(0), 0.3);
    EXPECT_LT(bar.circlePosition(0), 1.0);
    EXPECT_FALSE(isBlank(pictureOf(bar)));
    bar.SLOT_stop();
    EXPECT_TRUE(isBlank(pictureOf(bar)));
}
