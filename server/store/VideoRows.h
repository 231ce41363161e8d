// The rows of the video tables: what lists show of an item, and the sources that it was made from.
#pragma once

#include "RowTable.h"

#include "records/ListRequest.h"
#include "records/ScanRecords.h"

#include <QString>

// What items and shows have in common: the columns that are listed, sorted and searched.
struct Described {
    QString title;
    QString sortTitle; // folded
    QString search;    // folded titles
    QString rating;
    double ratingValue{0};
    QString runtime; // minutes, empty where not known
    QString director;
    QString cast;
    QString genre;
    QString genreSearch;
    QString country;
    QString countrySearch;
    QString overview;
    QString poster;
    QString backdrop;
    int year{0};

    void describe(const Description &description, const QString &nameForTitle);
};

struct VideoRow : Described {
    int id{0};
    int kind{static_cast<int>(Role::Videos)};
    qint64 missingSince{0};
    int leadId{0}; // 0: the lists show it
    int showId{0};
    int season{0};
    int episode{0};
    int lastEpisode{0};
    int groupId{0};
    int root{0};
    qint64 size{0};
    qint64 modified{0};
    qint64 added{0};
    qint64 seen{0};
    bool wants{false};
    bool tried{false};
    QString suffix;
    QString folder;
    QString path;
    QString realPath;
    QString scanned;  // StoredJson::ofVideo
    QString provided; // StoredJson::ofGiven
    QString matched;  // StoredJson::ofGiven

    [[nodiscard]] static const RowTable<VideoRow> &table();
    [[nodiscard]] ScannedVideo scannedVideo() const;
};

struct ShowRow : Described {
    int id{0};
    int episodes{0};
    qint64 added{0};
    bool wants{false};
    bool tried{false};
    QString key;
    QString path;
    QString scanned;  // StoredJson::ofDescription
    QString provided; // StoredJson::ofDescription

    [[nodiscard]] static const RowTable<ShowRow> &table();
};

struct SeasonRow {
    int id{0};
    int showId{0};
    int number{0};
    int year{0};
    QString title;
    QString director;
    QString cast;
    QString overview;
    QString poster;
    QString scanned;
    QString provided;

    [[nodiscard]] static const RowTable<SeasonRow> &table();
};
