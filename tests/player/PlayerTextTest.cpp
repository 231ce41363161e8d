#include "player/PlayerText.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

vdFileInfo source(int mediaClass, unsigned flags, int form = libvp::VD_Source_File)
{
    vdFileInfo info;
    info.mediaClass = mediaClass;
    info.flags = flags;
    info.sourceForm = form;
    return info;
}

} // namespace

TEST(PlayerText, VideoIsTheCodecInUpperCaseAndTheSize)
{
    libvp::VDVideoInfo info;
    std::strcpy(info.codec, "hevc");
    info.width = 3840;
    info.height = 2160;
    EXPECT_EQ(PlayerText::video(info), QStringLiteral("HEVC 3840*2160"));
}

TEST(PlayerText, ATextWithoutAnEndStopsAtItsArray)
{
    libvp::VDVideoInfo info;
    std::memset(info.codec, 'x', sizeof(info.codec));
    EXPECT_EQ(PlayerText::fixedText(info.codec), QString(64, QLatin1Char('x')));
}

TEST(PlayerText, TextsAreUtf8)
{
    EXPECT_EQ(PlayerText::engineText("\xC3\xA4"), QString(QChar(0xE4)));
    EXPECT_EQ(PlayerText::engineText(nullptr), QString());
}

TEST(PlayerText, TitleMinusOneShowsNone)
{
    EXPECT_EQ(PlayerText::title(-1), QStringLiteral("None"));
    EXPECT_EQ(PlayerText::title(0), QStringLiteral("0"));
    EXPECT_EQ(PlayerText::title(12), QStringLiteral("12"));
}

TEST(PlayerText, TheLastOfFiveChaptersShowsAsTheOnlyOne)
{
    EXPECT_EQ(PlayerText::chapter(4, 5), QStringLiteral("4 / 5"));
    EXPECT_EQ(PlayerText::chapter(5, 5), QStringLiteral("1 / 1"));
    EXPECT_EQ(PlayerText::chapter(0, 0), QStringLiteral("1 / 1"));
    EXPECT_EQ(PlayerText::chapter(7, 5), QStringLiteral("1 / 1"));
}

TEST(PlayerText, TimesAreHoursMinutesSeconds)
{
    EXPECT_EQ(PlayerText::time(65999, 5400000), QStringLiteral("00:01:05 / 01:30:00"));
    EXPECT_EQ(PlayerText::time(0, 0), QStringLiteral("00:00:00 / 00:00:00"));
    EXPECT_EQ(PlayerText::time(-5, 90000000), QStringLiteral("00:00:00 / 25:00:00"));
}

TEST(PlayerText, AudioJoinsLanguageNameAndFormatThatAreThere)
{
    libvp::VDAudioInfo info;
    std::strcpy(info.language, "eng");
    std::strcpy(info.format, "AC3 5.1");
    EXPECT_EQ(PlayerText::audio(info), QStringLiteral("eng AC3 5.1"));
    std::strcpy(info.name, "Commentary");
    EXPECT_EQ(PlayerText::audio(info), QStringLiteral("eng Commentary AC3 5.1"));
}

TEST(PlayerText, SubtitleIsTheTwoStringsWithABlankBetween)
{
    libvp::VDSubtitleInfo info;
    std::strcpy(info.language, "ger");
    std::strcpy(info.name, "Forced");
    EXPECT_EQ(PlayerText::subtitle(info), QStringLiteral("ger Forced"));
}

TEST(PlayerText, AnUnknownDynamicRangeShowsAsSdr)
{
    EXPECT_EQ(PlayerText::dynamicRange(0), QStringLiteral("SDR"));
    EXPECT_EQ(PlayerText::dynamicRange(1), QStringLiteral("HDR"));
    EXPECT_EQ(PlayerText::dynamicRange(2), QStringLiteral("HDR->SDR"));
    EXPECT_EQ(PlayerText::dynamicRange(3), QStringLiteral("SDR"));
    EXPECT_EQ(PlayerText::dynamicRange(-1), QStringLiteral("SDR"));
}

TEST(PlayerText, FileTypeFollowsTheSourceForm)
{
    const std::pair<int, const char *> rows[] = {{10, "ISO"},  {11, "ISO"},  {12, "Folder"}, {13, "Folder"},
                                                 {14, "Disc"}, {15, "Disc"}, {16, "file"},   {17, "file"},
                                                 {0, "file"},  {99, "file"}};
    for (const auto &[form, text] : rows)
        EXPECT_EQ(PlayerText::fileType(source(0, 0, form)), QLatin1String(text)) << form;
}

TEST(PlayerText, MediaTypeFollowsClassAndFlags)
{
    EXPECT_EQ(PlayerText::mediaType(source(2, 1)), QStringLiteral("UHD"));
    EXPECT_EQ(PlayerText::mediaType(source(2, 2)), QStringLiteral("BD"));
    EXPECT_EQ(PlayerText::mediaType(source(1, 1)), QStringLiteral("DVD"));
    EXPECT_EQ(PlayerText::mediaType(source(0, 0)), QStringLiteral("VideoFile"));
    EXPECT_EQ(PlayerText::mediaType(source(0, 0x00010001)), QStringLiteral("4K"));
    EXPECT_EQ(PlayerText::mediaType(source(0, 0x00010000)), QStringLiteral("HEVC"));
    EXPECT_EQ(PlayerText::mediaType(source(0, 0x80000000U)), QStringLiteral("VideoFile"));
    EXPECT_EQ(PlayerText::mediaType(source(3, 1)), QStringLiteral("Unknown"));
}
