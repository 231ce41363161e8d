#include "SignalLog.h"

namespace {

QString textOf(const QString &value)
{
    return QLatin1Char(' ') + value;
}

QString textOf(int value)
{
    return QLatin1Char(' ') + QString::number(value);
}

QString textOf(bool value)
{
    return value ? QStringLiteral(" true") : QStringLiteral(" false");
}

} // namespace

void SignalLog::follow(LibrarySignals &notices)
{
    using S = LibrarySignals;
    const auto noteId = [&](const char *name, void (S::*signal)(QString)) {
        connect(&notices, signal, this,
                [this, name](const QString &id) { m_lines.append(QLatin1String(name) + textOf(id)); });
    };
    const auto notePair = [&](const char *name, void (S::*signal)(QString, QString)) {
        connect(&notices, signal, this, [this, name](const QString &a, const QString &b) {
            m_lines.append(QLatin1String(name) + textOf(a) + textOf(b));
        });
    };
    const auto noteNumber = [&](const char *name, void (S::*signal)(int)) {
        connect(&notices, signal, this,
                [this, name](int value) { m_lines.append(QLatin1String(name) + textOf(value)); });
    };
    const auto noteFlag = [&](const char *name, void (S::*signal)(bool)) {
        connect(&notices, signal, this,
                [this, name](bool value) { m_lines.append(QLatin1String(name) + textOf(value)); });
    };
    const auto noteBare = [&](const char *name, void (S::*signal)()) {
        connect(&notices, signal, this, [this, name] { m_lines.append(QLatin1String(name)); });
    };
    noteId("sig_newMovieLoaded", &S::sig_newMovieLoaded);
    noteId("sig_newCollectionLoaded", &S::sig_newCollectionLoaded);
    noteId("sig_newTvShowLoaded", &S::sig_newTvShowLoaded);
    noteId("sig_newVideoLoaded", &S::sig_newVideoLoaded);
    noteId("sig_newAdultContentLoad", &S::sig_newAdultContentLoad);
    noteNumber("sig_reLoadData", &S::sig_reLoadData);
    noteBare("sig_videoPathChanged", &S::sig_videoPathChanged);
    noteFlag("sig_updateLibraryCompleted", &S::sig_updateLibraryCompleted);
    noteFlag("sig_rebuildLibraryCompleted", &S::sig_rebuildLibraryCompleted);
    noteNumber("sig_mediaScanStateChanged", &S::sig_mediaScanStateChanged);
    noteBare("sig_updateHeartBeat", &S::sig_updateHeartBeat);
    noteBare("sig_meidaServerPathLoaded", &S::sig_meidaServerPathLoaded);
    noteId("sig_musicPlaylistLoaded", &S::sig_musicPlaylistLoaded);
    notePair("sig_musicPlaylistSongLoaded", &S::sig_musicPlaylistSongLoaded);
    notePair("sig_musicPlaylistSongRemove", &S::sig_musicPlaylistSongRemove);
    noteId("sig_musicAlbumLoaded", &S::sig_musicAlbumLoaded);
    noteId("sig_musicArtistLoaded", &S::sig_musicArtistLoaded);
    noteId("sig_musicGenresLoaded", &S::sig_musicGenresLoaded);
    noteId("sig_musicSongLoaded", &S::sig_musicSongLoaded);
    noteId("sig_musicPlaylistRemoved", &S::sig_musicPlaylistRemoved);
    noteId("sig_musicAlbumRemoved", &S::sig_musicAlbumRemoved);
    noteId("sig_musicArtistRemoved", &S::sig_musicArtistRemoved);
    noteId("sig_musicGenreRemoved", &S::sig_musicGenreRemoved);
    noteBare("sig_musicPathChanged", &S::sig_musicPathChanged);
    noteId("sig_musicSongLikeChanged", &S::sig_musicSongLikeChanged);
    noteId("sig_musicSongRemoved", &S::sig_musicSongRemoved);
    noteBare("sig_musicRecentClean", &S::sig_musicRecentClean);
    noteId("sig_musicRecentSongChanged", &S::sig_musicRecentSongChanged);
    noteId("sig_musicSongUpdated", &S::sig_musicSongUpdated);
}
