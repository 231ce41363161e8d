#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "playcontrol/ErrorNote.h"

#include <gtest/gtest.h>

TEST(ErrorNoteTest, HevcInSoftwareCanBeSilencedAndPlaysOn)
{
    TestSettings settings;
    const ErrorNote::Row *row = ErrorNote::rowOf(13017);
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->stopsPlay);
    EXPECT_EQ(ErrorNote::text(*row),
              "Your device does not support hardware decoding for H.265 4K videos, and we've automatically "
              "switched to "
              "the software decoding mode, which might possibly cause unsmooth playback.");
    EXPECT_TRUE(ErrorNote::isShown(*row, *settings));
    ErrorNote::suppress(*row, *settings);
    EXPECT_FALSE(ErrorNote::isShown(*row, *settings));
    EXPECT_TRUE(settings->value(SettingsKeys::PC_HardWareNotSupportDontShowAgain).toBool());
}

TEST(ErrorNoteTest, UhdDiscWithoutHardwareStopsAndAlwaysTellsIt)
{
    TestSettings settings;
    const ErrorNote::Row *row = ErrorNote::rowOf(13018);
    ASSERT_NE(row, nullptr);
    EXPECT_TRUE(row->stopsPlay);
    EXPECT_EQ(ErrorNote::text(*row),
              "Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.");
    ErrorNote::suppress(*row, *settings);
    EXPECT_TRUE(ErrorNote::isShown(*row, *settings));
}

TEST(ErrorNoteTest, InvalidShaderPlaysOn)
{
    const ErrorNote::Row *row = ErrorNote::rowOf(20005);
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->stopsPlay);
    EXPECT_EQ(ErrorNote::text(*row), "Invalid custom shader, please check and try again.");
}

TEST(ErrorNoteTest, OtherTypesAreOnlyLogged)
{
    for (const int type : {0, 1, -7, 13019})
        EXPECT_EQ(ErrorNote::rowOf(type), nullptr) << type;
    EXPECT_EQ(ErrorNote::logLine(13019), "[SolveError]: error type : 13019");
}
