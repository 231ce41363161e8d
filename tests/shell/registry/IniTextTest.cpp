#include "registry/IniText.h"

#include <gtest/gtest.h>

namespace {

constexpr auto Any = IniText::Names::AnyCase;
constexpr auto Exact = IniText::Names::ExactCase;

TEST(IniTextTest, WhatIsReadComesBackByteByByte)
{
    for (const char *text :
         {"", "\n", "a=1", "a=1\n", "; note\n\n[One]\nkey = value \n\n[Two]\nno entry\n", "[One]\r\na=1\r\n",
          "[One]\r\na=1\nb=2\r\n", "[open\n[]\n=\n==\n[One]trailing\n", "\xEF\xBB\xBF[One]\n"})
        EXPECT_EQ(IniText(Any, text).text(), text);
}

TEST(IniTextTest, ValuesAreFoundWithoutTheBlanksAroundThem)
{
    const IniText text(Any, "[One]\n key \t=  a value \r\n#key=no\n;key=no\n");
    EXPECT_EQ(text.value("One", "key"), "a value");
    EXPECT_EQ(text.value("One", "#key"), std::nullopt);
    EXPECT_EQ(text.value("Two", "key"), std::nullopt);
}

TEST(IniTextTest, NamesAreTakenInAnyCaseOrExactlyAsAskedFor)
{
    const char *const lines = "[Task]\nCount=2\n";
    EXPECT_EQ(IniText(Any, lines).value("tASK", "COUNT"), "2");
    EXPECT_EQ(IniText(Exact, lines).value("tASK", "COUNT"), std::nullopt);
    EXPECT_EQ(IniText(Exact, lines).value("Task", "Count"), "2");
}

TEST(IniTextTest, TheFirstOfTwoSectionsAndOfTwoKeysCounts)
{
    const IniText text(Any, "[One]\na=1\na=2\n[One]\na=3\nb=4\n");
    EXPECT_EQ(text.value("One", "a"), "1");
    EXPECT_EQ(text.value("One", "b"), std::nullopt);
}

TEST(IniTextTest, AnEmptyValueIsThereAndALineWithoutEqualsSignIsNot)
{
    const IniText text(Any, "[One]\nempty=\nbare\n");
    EXPECT_EQ(text.value("One", "empty"), "");
    EXPECT_EQ(text.value("One", "bare"), std::nullopt);
}

TEST(IniTextTest, AChangeTouchesItsLineAlone)
{
    IniText text(Exact, "# head\n[One]\na=1\n# note\nb = 2\n\n[Two]\na=3\n");
    text.setValue("One", "b", "new");
    text.setValue("Two", "c", "4");
    text.setValue("One", "d", "5");
    EXPECT_EQ(text.text(), "# head\n[One]\na=1\n# note\nb=new\nd=5\n\n[Two]\na=3\nc=4\n");
}

TEST(IniTextTest, WhatWasAddedAndTakenAwayLeavesNoTrace)
{
    const std::string before = "[One]\na=1\n\n[Two]\nb=2";
    IniText text(Exact, before);
    text.setValue("One", "x", "1");
    text.setValue("Three", "y", "2");
    text.removeValue("One", "x");
    text.removeSection("Three");
    EXPECT_EQ(text.text(), before);
    EXPECT_EQ(text.value("Three", "y"), std::nullopt);
}

TEST(IniTextTest, LineEndsOfAddedLinesFollowTheText)
{
    IniText text(Any, "[One]\r\na=1\r\n");
    text.setValue("Two", "b", "2");
    EXPECT_EQ(text.text(), "[One]\r\na=1\r\n[Two]\r\nb=2\r\n");
    EXPECT_EQ(text.value("Two", "b"), "2");
}

TEST(IniTextTest, AReplacedSectionKeepsItsPlace)
{
    IniText text(Any, "[0]\na=1\nb=2\n[1]\nc=3\n");
    text.replaceSection("0", {{"z", "9"}});
    text.replaceSection("7", {{"q", ""}});
    EXPECT_EQ(text.text(), "[0]\nz=9\n[1]\nc=3\n[7]\nq=\n");
    EXPECT_EQ(text.sections(), (std::vector<std::string>{"0", "1", "7"}));
    EXPECT_EQ(text.keys("0"), (IniText::Keys{{"z", "9"}}));
}

} // namespace
