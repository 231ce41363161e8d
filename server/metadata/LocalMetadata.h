// Answers searches without a provider: from what the library and the sidecars know, and from what the user
// typed.
//
// Refers to the two libraries; keeps nothing. Any thread.
#pragma once

#include "MediaId.h"

#include "records/LibraryRecords.h"
#include "store/IMusicLibrary.h"
#include "store/IVideoLibrary.h"

#include <optional>

class LocalMetadata final {
public:
    struct Film {
        Description description;
        QString collection;
    };

    LocalMetadata(const IVideoLibrary &videos, const IMusicLibrary &music);

    // The name as typed, so that a user can make it so; nothing for an empty one.
    [[nodiscard]] static QVector<MatchRecord> typed(const QString &name, int year);
    // Entries of the library whose titles hold the name, those of the year first.
    [[nodiscard]] QVector<MatchRecord> films(const QString &name, int year) const;
    [[nodiscard]] QVector<MatchRecord> shows(const QString &name, int year) const;
    [[nodiscard]] QVector<SongMatchRecord> songs(const QString &title, const QString &artist) const;

    // What such a proposal says about an item. Nothing for an id that no longer exists.
    [[nodiscard]] std::optional<Film> film(int idFile, const MediaId &id) const;
    [[nodiscard]] std::optional<Description> show(const MediaId &id) const;

private:
    [[nodiscard]] std::optional<ShowRecord> showRecord(int idTvshow) const;

    const IVideoLibrary &m_videos;
    const IMusicLibrary &m_music;
};
