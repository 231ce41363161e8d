// The row of a song: what lists show of it, what its file says, and what the user has corrected.
#pragma once

#include "RowTable.h"

#include "records/LibraryRecords.h"
#include "records/ScanRecords.h"

#include <QString>

struct SongRow {
    int id{0};
    qint64 missingSince{0};
    qint64 added{0};
    QString sortTitle;
    int year{0};
    qint64 modified{0};
    int albumId{0};
    int disc{0};
    int trackNumber{0};
    int track{-1};
    bool liked{false};
    int runtime{0};
    int root{0};
    qint64 size{0};
    qint64 seen{0};
    QString suffix;
    QString folder;
    QString path;
    QString cuePath;
    QString title;
    QString search;
    QString artist;
    QString genre;
    QString album;
    QString poster;
    QString scanned; // StoredJson::ofSong
    QString edited;  // the corrected values by name

    [[nodiscard]] static const RowTable<SongRow> &table();
    [[nodiscard]] ScannedSong scannedSong() const;

    // Sets what is listed from what the file says, which stands in scanned as well, and what was corrected.
    void describe(const ScannedSong &said);
    // Keeps those values of the record that differ from what the file says. A song without title, picture or
    // length is no correction.
    void edit(const SongRecord &record);
};
