// One record of the video library: a film, a collection, a show, a season, an episode, a video, an adult item
// or a proposal of the scraper. A value: getters hand out copies, and what is unused stays empty.
#pragma once

#include <QString>

struct MediaItem {
    QString title;
    QString rating;
    QString year; // empty when unknown; of a scraper's proposal the date of release
    QString runtime;
    QString director;
    QString cast;
    QString genre;
    QString overview;
    QString poster;
    QString backdrop;
    QString path;         // of an episode with this system's separators
    QString mediaId;      // of a scraper's proposal: what the server knows it by
    QString seasonTitle;  // "Show: Season 1"
    QString episodeTitle; // "Show S1E2: Title"
    int number{0};        // of a season and of an episode
    int fileCount{0};     // of a collection
};
