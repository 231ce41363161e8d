#include "engine/SubtitleText.h"

#include "play/TestClips.h"

#include <gtest/gtest.h>

namespace {

std::string file(const std::string &bytes)
{
    const std::string path = TestClips::scratchFolder() + "/text.srt";
    TestClips::write(path, bytes);
    return path;
}

std::string utf16(const std::u16string &text, bool bigEndian)
{
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(SubtitleTextTest, LettersOfAllSizesAreConverted)
{
    for (const bool bigEndian : {false, true})
        EXPECT_EQ(SubtitleText::fromUtf16(utf16(u"aé世🎬\n", bigEndian), bigEndian), "aé世🎬\n");
}

TEST(SubtitleTextTest, HalvesOfPairsAreReplaced)
{
    EXPECT_EQ(SubtitleText::fromUtf16(utf16(u"a\xD83C", false), false), "a\uFFFD");
    EXPECT_EQ(SubtitleText::fromUtf16(utf16(u"\xDFAC"
                                            u"b",
                                            false),
                                      false),
              "\uFFFD"
              "b");
    EXPECT_EQ(SubtitleText::fromUtf16(utf16(u"\xD83C\xD83C\xDFAC", true), true), "\uFFFD🎬");
    EXPECT_EQ(SubtitleText::fromUtf16("\x61", false), "") << "half a letter at the end";
    EXPECT_EQ(SubtitleText::fromUtf16("", true), "");
}

TEST(SubtitleTextTest, MarksTellTheOrder)
{
    EXPECT_EQ(SubtitleText::read(file(utf16(u"\xFEFF\x041F\x0440", false))), "Пр");
    EXPECT_EQ(SubtitleText::read(file(utf16(u"\xFEFF\x041F\x0440", true))), "Пр");
}

TEST(SubtitleTextTest, OtherFilesAreLeftToLibmpv)
{
    const std::string bytes[] = {"",
                                 "a",
                                 "1\n00:00:01,000 --> 00:00:02,000\nHello\n",
                                 "\xEF\xBB\xBF"
                                 "1\n",
                                 std::string(4096, '\0'),
                                 std::string("\xFF\xFE\0\0a\0\0\0", 8),
                                 "\xCF\xF0\xE8\xE2\xE5\xF2, \xEC\xE8\xF0",
                                 std::string("\xFF\xFE", 2)};
    for (const std::string &text : bytes) {
        const std::string path = file(text);
        EXPECT_EQ(SubtitleText::addressOf(path), path) << text;
        EXPECT_FALSE(SubtitleText::read(path).has_value()) << text;
    }
    EXPECT_EQ(SubtitleText::addressOf("/nowhere/x.srt"), "/nowhere/x.srt");
}

TEST(SubtitleTextTest, AnAddressLeadsBackToItsFile)
{
    const std::string path = file(utf16(u"1\n00:00:00,000 --> 00:00:01,000\nHello\n", false));
    const std::string address = SubtitleText::addressOf(path);
    EXPECT_EQ(address, "orbixtext://" + path);
    EXPECT_EQ(SubtitleText::pathOf(address), path);
    EXPECT_EQ(SubtitleText::pathOf(path), path);
}
