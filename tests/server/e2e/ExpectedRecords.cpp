#include "ExpectedRecords.h"

#include <gtest/gtest.h>

namespace ExpectedRecords {

namespace {

template<class Record>
struct TextField {
    const char *name;
    QString Record::*field;
};

template<class Record, std::size_t N>
void expectTexts(const TextField<Record> (&fields)[N], const Record &actual, const Record &expected)
{
    for (const TextField<Record> &row : fields) {
        EXPECT_EQ((actual.*row.field).toStdString(), (expected.*row.field).toStdString())
            << row.name << " of " << qPrintable(expected.title);
    }
}

} // namespace

void expectSame(const MediaItem &actual, const MediaItem &expected)
{
    using Field = TextField<MediaItem>;
    static const Field fields[] = {
        {"title", &MediaItem::title},        {"rating", &MediaItem::rating},
        {"year", &MediaItem::year},          {"runtime", &MediaItem::runtime},
        {"director", &MediaItem::director},  {"cast", &MediaItem::cast},
        {"genre", &MediaItem::genre},        {"overview", &MediaItem::overview},
        {"poster", &MediaItem::poster},      {"backdrop", &MediaItem::backdrop},
        {"path", &MediaItem::path},          {"mediaId", &MediaItem::mediaId},
        {"season", &MediaItem::seasonTitle}, {"episode", &MediaItem::episodeTitle},
    };
    expectTexts(fields, actual, expected);
    EXPECT_EQ(actual.number, expected.number) << qPrintable(expected.title);
    EXPECT_EQ(actual.fileCount, expected.fileCount) << qPrintable(expected.title);
}

void expectSame(const MusicSong &actual, const MusicSong &expected)
{
    using Field = TextField<MusicSong>;
    static const Field fields[] = {
        {"artist", &MusicSong::artist}, {"genre", &MusicSong::genre}, {"title", &MusicSong::title},
        {"poster", &MusicSong::poster}, {"album", &MusicSong::album}, {"path", &MusicSong::path},
        {"suffix", &MusicSong::suffix}, {"cue", &MusicSong::cuePath},
    };
    expectTexts(fields, actual, expected);
    EXPECT_EQ(actual.year, expected.year) << qPrintable(expected.title);
    EXPECT_EQ(actual.iTrack, expected.iTrack) << qPrintable(expected.title);
    EXPECT_EQ(actual.like, expected.like) << qPrintable(expected.title);
}

} // namespace ExpectedRecords
