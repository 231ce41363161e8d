#include "ui/StyleSheetScaler.h"

#include <gtest/gtest.h>

namespace {

using StyleSheetScaler::scaled;

TEST(StyleSheetScaler, AtOneTheTextStaysByteForByte)
{
    const QString sheet = "a { width: 10 px; margin:-3px;\n}\t";
    EXPECT_EQ(scaled(sheet, 1.0F), sheet);
}

TEST(StyleSheetScaler, ValuesDouble)
{
    EXPECT_EQ(scaled("a { width: 10px; padding:4px 6px; }", 2.0F), "a { width: 20px; padding:8px 12px; }");
}

TEST(StyleSheetScaler, ANegativeValueScalesWithItsSign)
{
    EXPECT_EQ(scaled("margin: -5px;", 2.0F), "margin: -10px;");
    EXPECT_EQ(scaled("margin: -5px;", 1.5F), "margin: -7px;");
}

TEST(StyleSheetScaler, ABlankBeforeTheUnitIsDropped)
{
    EXPECT_EQ(scaled("width: 10 px;", 1.5F), "width: 15px;");
}

TEST(StyleSheetScaler, TheProductIsCut)
{
    EXPECT_EQ(scaled("width: 3px;", 1.5F), "width: 4px;");
}

TEST(StyleSheetScaler, LengthsAfterAnythingElseStay)
{
    EXPECT_EQ(scaled("f(1px,4px) x4px", 2.0F), "f(1px,4px) x4px");
}

TEST(StyleSheetScaler, OtherUnitsAndCapitalsStay)
{
    EXPECT_EQ(scaled("a: 4pt; b: 4PX; c: 50%", 2.0F), "a: 4pt; b: 4PX; c: 50%");
}

TEST(StyleSheetScaler, TheTailIsKept)
{
    EXPECT_EQ(scaled(" 1px tail", 2.0F), " 2px tail");
    EXPECT_EQ(scaled(QString(), 2.0F), QString());
}

} // namespace
