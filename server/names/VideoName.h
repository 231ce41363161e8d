// What the name of a film's file or folder says: title, year and ids.
//
// "Some.Film.2010.1080p.BluRay.x264-GROUP" and "Some Film (2010) [imdbid-tt0123456]" give the same title and
// year. The last year counts, for titles hold years too; a year in round brackets is surer than a bare one,
// and a date is no year. Pure; any thread.
#pragma once

#include <QMap>
#include <QString>

class VideoName final {
public:
    // name: without the suffix of the file. The title is never empty unless the name holds nothing that can
    // be read.
    [[nodiscard]] static VideoName parse(const QString &name);

    // Whether both tell the same film.
    [[nodiscard]] bool isSameAs(const VideoName &other) const;

    QString title;
    int year{0};                       // 0: none
    bool yearInBrackets{false};        // as people write it who sort their films
    bool released{false};              // words of a release ("1080p", "x264") stood in the name
    QMap<QString, QString> identities; // "imdb", "tmdb", "tvdb" to the id there
};

// The ids of a name and what is left of it without them.
class NameIdentities final {
public:
    // "[imdbid-tt0123456]", "{tmdb-27205}", "[tvdbid=81189]", "[tt0123456]".
    [[nodiscard]] static NameIdentities take(const QString &name);

    QString rest;
    QMap<QString, QString> identities;
};
