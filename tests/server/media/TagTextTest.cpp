#include "media/TagText.h"

#include <QTextCodec>

#include <gtest/gtest.h>

namespace {

TEST(TagTextTest, TakesTheTitleOutOfAName)
{
    const struct {
        const char *path;
        const char *title;
        int number;
    } rows[] = {
        {"/m/01 - Song.mp3", "Song", 1},
        {"/m/12. Song.mp3", "Song", 12},
        {"/m/03_Song.mp3", "Song", 3},
        {"/m/99 Balloons.mp3", "99 Balloons", 0},
        {"/m/1.5 Miles.mp3", "1.5 Miles", 0},
        {"/m/01 - 1979.flac", "1979", 1},
        {"/m/Song", "Song", 0},
        {"/m/.hidden", ".hidden", 0},
        {"/m/2001.mp3", "2001", 0},
        {"/m/01 - .mp3", "01 -", 0},
    };
    for (const auto &row : rows) {
        int number = -1;
        EXPECT_EQ(TagText::titleOf(row.path, &number), row.title) << row.path;
        EXPECT_EQ(number, row.number) << row.path;
    }
}

TEST(TagTextTest, GuessesTheCharsetOfOldTags)
{
    const auto in = [](const char *codec, const char *text) {
        return QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(text));
    };
    const struct {
        QByteArray bytes;
        const char *local;
        const char *text;
    } rows[] = {
        {"plain", "GB18030", "plain"},
        {in("UTF-8", "日本語"), nullptr, "日本語"},
        {in("GB18030", "月亮代表我的心"), "GB18030", "月亮代表我的心"},
        {in("Shift_JIS", "さくら"), "Shift_JIS", "さくら"},
        {in("EUC-KR", "사랑"), "EUC-KR", "사랑"},
        {in("windows-1251", "Катюша"), "windows-1251", "Катюша"},
        {in("ISO-8859-1", "Mötley Crüe"), "GB18030", "Mötley Crüe"},
        {in("ISO-8859-1", "Beyoncé Knowles"), "windows-1251", "Beyoncé Knowles"},
        {in("ISO-8859-1", "Café"), nullptr, "Café"},
    };
    for (const auto &row : rows) {
        QTextCodec *local = row.local ? QTextCodec::codecForName(row.local) : nullptr;
        EXPECT_EQ(TagText::decodeLegacy(row.bytes, local), QString::fromUtf8(row.text)) << row.text;
    }
}

TEST(TagTextTest, MakesOneShortLineOfAnyText)
{
    EXPECT_EQ(TagText::clean(" a\n\tb\x01 c "), "a b c");
    EXPECT_EQ(TagText::clean(QString(100000, 'x')).size(), 1000);
}

} // namespace
