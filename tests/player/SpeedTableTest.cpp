#include "player/SpeedTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>

TEST(SpeedTable, HasEighteenValuesAndTexts)
{
    const float values[] = {-32,  -16,   -8,   -4,    -2,   0, 0.25F, 0.5F, 0.75F,
                            1.0F, 1.25F, 1.5F, 1.75F, 2.0F, 4, 8,     16,   32};
    const char *texts[] = {"-32", "-16",  "-8",  "-4",   "-2", "0", "1/4", "1/2", "3/4",
                           "1",   "1.25", "1.5", "1.75", "2",  "4", "8",   "16",  "32"};
    ASSERT_EQ(SpeedTable::values().size(), 18);
    ASSERT_EQ(SpeedTable::texts().size(), 18);
    for (int index = 0; index < 18; ++index) {
        EXPECT_FLOAT_EQ(SpeedTable::values().value(index), values[index]) << index;
        EXPECT_EQ(SpeedTable::texts().value(index), QLatin1String(texts[index])) << index;
        EXPECT_EQ(SpeedTable::indexOf(values[index]), index);
    }
}

TEST(SpeedTable, ASpeedBetweenTwoCountsAsTheNearer)
{
    EXPECT_EQ(SpeedTable::indexOf(1.02F), 9);
    EXPECT_EQ(SpeedTable::indexOf(100.0F), 17);
    EXPECT_EQ(SpeedTable::indexOf(-100.0F), 0);
    EXPECT_EQ(SpeedTable::indexOf(std::numeric_limits<float>::quiet_NaN()), 9);
}

TEST(SpeedTable, ForwardGoesTo13FromAllBelowAndOneUpFromThere)
{
    for (int index = 0; index < 13; ++index)
        EXPECT_EQ(SpeedTable::step(index, true), 13) << index;
    EXPECT_EQ(SpeedTable::step(13, true), 14);
    EXPECT_EQ(SpeedTable::step(16, true), 17);
    EXPECT_EQ(SpeedTable::step(17, true), 17);
}

TEST(SpeedTable, BackwardGoesTo4FromAllAboveAndOneDownFromThere)
{
    for (int index = 5; index <= 17; ++index)
        EXPECT_EQ(SpeedTable::step(index, false), 4) << index;
    EXPECT_EQ(SpeedTable::step(4, false), 3);
    EXPECT_EQ(SpeedTable::step(1, false), 0);
    EXPECT_EQ(SpeedTable::step(0, false), 0);
}
