#include "Schema.h"

namespace {

// Ids come from counters, so that none is ever used again. What is sorted and counted stands before the long
// texts: a row is read from its start.
Migration libraries()
{
    return {
        QStringLiteral("libraries and counters"),
        {
            QStringLiteral("CREATE TABLE counters (name {text} NOT NULL PRIMARY KEY, value BIGINT NOT NULL)"),
            QStringLiteral(
                "CREATE TABLE data_versions (area INTEGER NOT NULL PRIMARY KEY, value BIGINT NOT NULL)"),
            QStringLiteral("CREATE TABLE roots (id INTEGER NOT NULL PRIMARY KEY, library INTEGER NOT NULL, "
                           "path {text} NOT NULL, scraper_type {text} NOT NULL, online INTEGER NOT NULL, "
                           "UNIQUE (library, path))"),
            QStringLiteral("CREATE TABLE folders (root INTEGER NOT NULL, path {text} NOT NULL, "
                           "fingerprint {text} NOT NULL, PRIMARY KEY (root, path))"),
            QStringLiteral("CREATE TABLE removed (path {text} NOT NULL, track INTEGER NOT NULL, "
                           "size BIGINT NOT NULL, modified BIGINT NOT NULL, PRIMARY KEY (path, track))"),
        }};
}

QString describedColumns()
{
    return QStringLiteral("sort_title {text} NOT NULL, year INTEGER NOT NULL, added BIGINT NOT NULL, "
                          "rating_value {real} NOT NULL, title {text} NOT NULL, search {text} NOT NULL, "
                          "rating {text} NOT NULL, runtime {text} NOT NULL, director {text} NOT NULL, "
                          "actors {text} NOT NULL, genre {text} NOT NULL, genre_search {text} NOT NULL, "
                          "country {text} NOT NULL, country_search {text} NOT NULL, poster {text} NOT NULL, "
                          "backdrop {text} NOT NULL, overview {text} NOT NULL");
}

Migration video()
{
    return {
        QStringLiteral("video"),
        {
            QStringLiteral(
                "CREATE TABLE items (id INTEGER NOT NULL PRIMARY KEY, kind INTEGER NOT NULL, "
                "missing_since BIGINT NOT NULL, lead_id INTEGER NOT NULL, show_id INTEGER NOT NULL, "
                "season INTEGER NOT NULL, episode INTEGER NOT NULL, last_episode INTEGER NOT NULL, "
                "group_id INTEGER NOT NULL, root INTEGER NOT NULL, size BIGINT NOT NULL, "
                "modified BIGINT NOT NULL, seen BIGINT NOT NULL, wants INTEGER NOT NULL, "
                "tried INTEGER NOT NULL, suffix {text} NOT NULL, folder {text} NOT NULL, "
                "path {text} NOT NULL UNIQUE, real_path {text} NOT NULL, ")
                + describedColumns()
                + QStringLiteral(
                    ", scanned {text} NOT NULL, provided {text} NOT NULL, matched {text} NOT NULL)"),
            QStringLiteral("CREATE INDEX items_order ON items "
                           "(kind, missing_since, lead_id, sort_title, year, added, rating_value)"),
            QStringLiteral("CREATE INDEX items_folder ON items (folder)"),
            QStringLiteral("CREATE INDEX items_episode ON items (show_id, season, episode)"),
            QStringLiteral("CREATE INDEX items_lead ON items (lead_id)"),
            QStringLiteral("CREATE INDEX items_group ON items (group_id)"),
            QStringLiteral("CREATE INDEX items_stamp ON items (size, modified)"),
            QStringLiteral("CREATE TABLE shows (id INTEGER NOT NULL PRIMARY KEY, episodes INTEGER NOT NULL, "
                           "wants INTEGER NOT NULL, tried INTEGER NOT NULL, show_key {text} NOT NULL UNIQUE, "
                           "path {text} NOT NULL, ")
                + describedColumns() + QStringLiteral(", scanned {text} NOT NULL, provided {text} NOT NULL)"),
            QStringLiteral("CREATE TABLE seasons (id INTEGER NOT NULL PRIMARY KEY, "
                           "show_id INTEGER NOT NULL REFERENCES shows (id) ON DELETE CASCADE, "
                           "number INTEGER NOT NULL, year INTEGER NOT NULL, title {text} NOT NULL, "
                           "director {text} NOT NULL, actors {text} NOT NULL, overview {text} NOT NULL, "
                           "poster {text} NOT NULL, scanned {text} NOT NULL, provided {text} NOT NULL, "
                           "UNIQUE (show_id, number))"),
            QStringLiteral(
                "CREATE TABLE collections (id INTEGER NOT NULL PRIMARY KEY, movies INTEGER NOT NULL, "
                "year INTEGER NOT NULL, added BIGINT NOT NULL, rating_value {real} NOT NULL, "
                "sort_title {text} NOT NULL, name_key {text} NOT NULL UNIQUE, title {text} NOT NULL, "
                "search {text} NOT NULL, poster {text} NOT NULL, backdrop {text} NOT NULL, "
                "overview {text} NOT NULL, own_poster {text} NOT NULL, own_backdrop {text} NOT NULL)"),
        }};
}

Migration music()
{
    return {
        QStringLiteral("music"),
        {
            QStringLiteral(
                "CREATE TABLE songs (id INTEGER NOT NULL PRIMARY KEY, missing_since BIGINT NOT NULL, "
                "added BIGINT NOT NULL, sort_title {text} NOT NULL, year INTEGER NOT NULL, "
                "modified BIGINT NOT NULL, album_id INTEGER NOT NULL, disc INTEGER NOT NULL, "
                "track_number INTEGER NOT NULL, track INTEGER NOT NULL, liked INTEGER NOT NULL, "
                "runtime INTEGER NOT NULL, root INTEGER NOT NULL, size BIGINT NOT NULL, "
                "seen BIGINT NOT NULL, suffix {text} NOT NULL, folder {text} NOT NULL, "
                "path {text} NOT NULL, cue_path {text} NOT NULL, title {text} NOT NULL, "
                "search {text} NOT NULL, artist {text} NOT NULL, genre {text} NOT NULL, "
                "album {text} NOT NULL, poster {text} NOT NULL, scanned {text} NOT NULL, "
                "edited {text} NOT NULL, UNIQUE (path, track))"),
            QStringLiteral("CREATE INDEX songs_order ON songs (missing_since, added, sort_title)"),
            QStringLiteral("CREATE INDEX songs_folder ON songs (folder)"),
            QStringLiteral("CREATE INDEX songs_album ON songs (album_id)"),
            QStringLiteral("CREATE INDEX songs_stamp ON songs (size, modified)"),
            QStringLiteral("CREATE TABLE song_artists (song_id INTEGER NOT NULL "
                           "REFERENCES songs (id) ON DELETE CASCADE, name_key {text} NOT NULL, "
                           "name {text} NOT NULL, PRIMARY KEY (song_id, name_key))"),
            QStringLiteral("CREATE INDEX song_artists_name ON song_artists (name_key)"),
            QStringLiteral("CREATE TABLE song_genres (song_id INTEGER NOT NULL "
                           "REFERENCES songs (id) ON DELETE CASCADE, name_key {text} NOT NULL, "
                           "name {text} NOT NULL, PRIMARY KEY (song_id, name_key))"),
            QStringLiteral("CREATE INDEX song_genres_name ON song_genres (name_key)"),
            QStringLiteral("CREATE TABLE artist_pictures (name_key {text} NOT NULL PRIMARY KEY, "
                           "poster {text} NOT NULL)"),
            QStringLiteral("CREATE TABLE albums (id INTEGER NOT NULL PRIMARY KEY, songs INTEGER NOT NULL, "
                           "year INTEGER NOT NULL, added BIGINT NOT NULL, sort_title {text} NOT NULL, "
                           "album_key {text} NOT NULL UNIQUE, title {text} NOT NULL, search {text} NOT NULL, "
                           "artist {text} NOT NULL, genre {text} NOT NULL, poster {text} NOT NULL, "
                           "user_poster {text} NOT NULL)"),
            QStringLiteral("CREATE TABLE playlists (id INTEGER NOT NULL PRIMARY KEY, title {text} NOT NULL, "
                           "overview {text} NOT NULL, poster {text} NOT NULL)"),
            QStringLiteral("CREATE TABLE playlist_songs (playlist_id INTEGER NOT NULL "
                           "REFERENCES playlists (id) ON DELETE CASCADE, song_id INTEGER NOT NULL "
                           "REFERENCES songs (id) ON DELETE CASCADE, position BIGINT NOT NULL, "
                           "PRIMARY KEY (playlist_id, song_id))"),
            QStringLiteral("CREATE INDEX playlist_songs_song ON playlist_songs (song_id)"),
            QStringLiteral("CREATE TABLE recent_songs (song_id INTEGER NOT NULL PRIMARY KEY "
                           "REFERENCES songs (id) ON DELETE CASCADE, position BIGINT NOT NULL)"),
        }};
}

// What names pictures, so that a picture that no record names is told at once. Empty texts are left out.
Migration artwork()
{
    const auto index = [](const char *table, const char *column) {
        return QStringLiteral("CREATE INDEX %1_%2 ON %1 (%2) WHERE %2 <> ''")
            .arg(QLatin1String(table), QLatin1String(column));
    };
    return {QStringLiteral("artwork"),
            {index("items", "poster"), index("items", "backdrop"), index("songs", "poster"),
             index("shows", "poster"), index("shows", "backdrop"), index("seasons", "poster"),
             index("collections", "own_poster"), index("collections", "own_backdrop"),
             index("albums", "user_poster"), index("artist_pictures", "poster"),
             index("playlists", "poster")}};
}

// Which library a file was taken out of; 0 for those from before.
Migration removedFiles()
{
    return {QStringLiteral("libraries of removed files"),
            {QStringLiteral("ALTER TABLE removed ADD COLUMN library INTEGER NOT NULL DEFAULT 0")}};
}

} // namespace

QVector<Migration> Schema::steps()
{
    return {libraries(), video(), music(), artwork(), removedFiles()};
}
