// The records of the library as the objects of the wire: keys and types that the player reads, no others.
//
// Pure; any thread.
#pragma once

#include "records/LibraryRecords.h"

#include <QJsonArray>
#include <QJsonObject>

namespace RecordJson {

[[nodiscard]] QJsonObject object(const MovieRecord &movie);
[[nodiscard]] QJsonObject object(const GroupRecord &group);
[[nodiscard]] QJsonObject object(const ShowRecord &show);
[[nodiscard]] QJsonObject object(const SeasonRecord &season);
[[nodiscard]] QJsonObject object(const EpisodeRecord &episode);
[[nodiscard]] QJsonObject object(const SongRecord &song);
[[nodiscard]] QJsonObject object(const AlbumRecord &album);
[[nodiscard]] QJsonObject object(const ArtistRecord &artist);
[[nodiscard]] QJsonObject object(const PlaylistRecord &playlist);
[[nodiscard]] QJsonObject object(const MatchRecord &match);
[[nodiscard]] QJsonObject object(const SongMatchRecord &match);
[[nodiscard]] QJsonObject object(const RootFolder &folder);
// A song as the whole list of songs shows it: with what tells a track of a CUE sheet.
[[nodiscard]] QJsonObject songWithTrack(const SongRecord &song);

template<typename Record>
[[nodiscard]] QJsonArray array(const QVector<Record> &records)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(object(record));
    return array;
}

} // namespace RecordJson
