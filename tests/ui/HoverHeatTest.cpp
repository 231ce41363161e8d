#include "ui/HoverHeat.h"

#include "support/Eventually.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace {

constexpr int ShortMs = 20;
constexpr int LongMs = 600000;

} // namespace

TEST(HoverHeatTest, IsColdAtFirst)
{
    QWidget control;
    const HoverHeat heat(&control, ShortMs, ShortMs);
    EXPECT_EQ(heat.value(), 0.0);
}

TEST(HoverHeatTest, WarmsUpUnderThePointerAndCoolsDownWithoutIt)
{
    QWidget control;
    HoverHeat heat(&control, ShortMs, ShortMs);
    heat.warm(true);
    ASSERT_EVENTUALLY(heat.value() == 1.0);
    heat.warm(false);
    ASSERT_EVENTUALLY(heat.value() == 0.0);
}

TEST(HoverHeatTest, CoolsAtOnceOnTheWayUpToo)
{
    QWidget control;
    HoverHeat heat(&control, LongMs, ShortMs);
    heat.warm(true);
    ASSERT_EVENTUALLY(heat.value() > 0.0);
    heat.cool();
    EXPECT_EQ(heat.value(), 0.0);
    heat.warm(true);
    EXPECT_LT(heat.value(), 1.0);
}

TEST(HoverHeatTest, EachWayHasItsOwnTime)
{
    QWidget control;
    HoverHeat heat(&control, ShortMs, LongMs);
    heat.warm(true);
    ASSERT_EVENTUALLY(heat.value() == 1.0);
    heat.warm(false);
    ASSERT_EVENTUALLY(heat.value() < 1.0);
    EXPECT_GT(heat.value(), 0.5);
}
