// Turns the objects of the music library's answers into records. Pure functions.
#pragma once

#include "MusicAlbum.h"
#include "MusicArtist.h"
#include "MusicMatch.h"
#include "MusicPlaylist.h"
#include "MusicSong.h"

#include <QJsonObject>

namespace MusicRecords {

[[nodiscard]] MusicSong song(const QJsonObject &object);
[[nodiscard]] MusicPlaylist playlist(const QJsonObject &object);
[[nodiscard]] MusicAlbum album(const QJsonObject &object);
[[nodiscard]] MusicArtist artist(const QJsonObject &object);
[[nodiscard]] MusicMatch match(const QJsonObject &object);

} // namespace MusicRecords
