#include "ui/AnimateObject.h"

#include <QSignalSpy>
#include <QVariantAnimation>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

const QString Key = QStringLiteral("animate");

class Panel final : public QWidget, public AnimateObject {
public:
    void initAnimate(QString name) override
    {
        ++built;
        initFade(
            name, [this](double value) { shown = value; }, [this] { ++ends; });
    }
    void startAnimate(QString name, bool forward) override { startFade(name, shown, forward, {200, 200}); }

    int built{0};
    int ends{0};
    double shown{0.0};
};

} // namespace

TEST(AnimateObjectTest, NothingIsBuiltBeforeTheFirstRun)
{
    Panel panel;
    EXPECT_FALSE(panel.hasAnimate(Key));
    EXPECT_EQ(panel.animate(Key), nullptr);
    panel.runAnimate(Key, true);
    panel.runAnimate(Key, false);
    EXPECT_EQ(panel.built, 1);
}

TEST(AnimateObjectTest, SecondRunReversesFromThePresentValue)
{
    Panel panel;
    panel.runAnimate(Key, true);
    auto *animation = static_cast<QVariantAnimation *>(panel.animate(Key));
    animation->setCurrentTime(100);
    const double half = panel.shown;
    ASSERT_GT(half, 0.0);
    ASSERT_LT(half, 1.0);
    panel.runAnimate(Key, false);
    EXPECT_EQ(panel.animate(Key), animation);
    EXPECT_DOUBLE_EQ(animation->startValue().toDouble(), half);
    EXPECT_DOUBLE_EQ(animation->endValue().toDouble(), 0.0);
    EXPECT_EQ(animation->state(), QAbstractAnimation::Running);
}

TEST(AnimateObjectTest, DeletingAWidgetStopsItsRunningAnimationFirst)
{
    auto animation = QSharedPointer<QVariantAnimation>::create();
    {
        AnimateObject owner;
        animation->setStartValue(0);
        animation->setEndValue(1);
        animation->setDuration(10000);
        owner.setAnimate(Key, animation);
        animation->start();
        ASSERT_EQ(animation->state(), QAbstractAnimation::Running);
    }
    EXPECT_EQ(animation->state(), QAbstractAnimation::Stopped);
}

TEST(AnimateObjectTest, BaseOperationsDoNothing)
{
    AnimateObject plain;
    plain.runAnimate(Key, true);
    EXPECT_FALSE(plain.hasAnimate(Key));
    plain.removeAnimate(Key);
    plain.stopAll();
    plain.deleteAll();
}

TEST(AnimateObjectTest, RemovedAnimationIsStoppedAndForgotten)
{
    Panel panel;
    panel.runAnimate(Key, true);
    panel.removeAnimate(Key);
    EXPECT_FALSE(panel.hasAnimate(Key));
    panel.runAnimate(Key, true);
    EXPECT_EQ(panel.built, 2);
}

TEST(AnimateObjectTest, AFadeTellsItsEndAndAStopIsNone)
{
    Panel panel;
    panel.runAnimate(Key, true);
    panel.animate(Key)->setCurrentTime(200);
    EXPECT_EQ(panel.shown, 1.0);
    EXPECT_EQ(panel.ends, 1);
    panel.runAnimate(Key, false);
    panel.stopAll();
    EXPECT_EQ(panel.shown, 1.0);
    EXPECT_EQ(panel.ends, 1);
}
