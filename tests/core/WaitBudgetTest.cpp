#include "core/WaitBudget.h"

#include <gtest/gtest.h>

namespace {

void passMs(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms)
        continue;
}

TEST(WaitBudgetTest, TheLastWaitKeepsItsShareAndTheOthersShareTheRest)
{
    WaitBudget budget(500, 100);
    EXPECT_EQ(budget.leftMs(), 500);
    EXPECT_EQ(budget.beforeLastMs(), 400);
    budget.spend([] { passMs(50); });
    EXPECT_LE(budget.leftMs(), 450);
    EXPECT_EQ(budget.beforeLastMs(), budget.leftMs() - 100);
}

TEST(WaitBudgetTest, WhatPassesBetweenTheWaitsIsNotCounted)
{
    WaitBudget budget(500);
    passMs(50);
    EXPECT_EQ(budget.leftMs(), 500);
    EXPECT_EQ(budget.spend([] { return 7; }), 7);
}

TEST(WaitBudgetTest, ABudgetThatIsUsedUpIsEmptyAndNoLess)
{
    WaitBudget budget(10, 5);
    budget.spend([] { passMs(30); });
    EXPECT_EQ(budget.leftMs(), 0);
    EXPECT_EQ(budget.beforeLastMs(), 0);
}

} // namespace
