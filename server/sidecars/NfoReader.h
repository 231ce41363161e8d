// What an NFO file tells: of a film, a show, a season, episodes, an artist or an album; or no more than a
// link.
//
// Of repeated tags the last counts; actors, genres, countries and directors are lists. Never fails: what
// can't be read is not told. Any thread.
#pragma once

#include "records/ScanRecords.h"

#include <QByteArray>
#include <QString>
#include <QVector>

struct NfoRecord {
    enum class Kind { Movie, Show, Season, Episode, Artist, Album, Link };

    Kind kind{Kind::Link};
    Description description; // an artist's name and an album's title stand in the title
    QString collection;      // films
    QString collectionOverview;
    QString showTitle; // episodes
    QString artist;    // albums
    int season{-1};    // seasons and episodes; -1: not told
    int episode{-1};
};

namespace NfoReader {

constexpr qint64 largestFile = 2 * 1024 * 1024;

// One record for each root of the file. A file without any gives one of kind Link where it holds an address
// of a provider, and else none.
[[nodiscard]] QVector<NfoRecord> read(const QByteArray &data);

// Minutes of "123", "123 min", "2:03", "2h 3m" and "01:02:03"; 0 where it can't be told.
[[nodiscard]] int runtimeMinutes(const QString &text);

} // namespace NfoReader
