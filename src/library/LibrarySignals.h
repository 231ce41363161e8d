// What the library tells the views. The manager is one; its parts emit through it, so that nobody else has to
// be known to the views.
//
// The signals come from the thread in which something happened: a view's slots get them queued.
#pragma once

#include <QObject>
#include <QString>

class LibrarySignals : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    // A record has entered the copy of the library, with all that belongs to it.
    void sig_newMovieLoaded(QString id);
    void sig_newCollectionLoaded(QString id);
    void sig_newTvShowLoaded(QString id);
    void sig_newVideoLoaded(QString id);
    void sig_newAdultContentLoad(QString id);
    // The role is about to be loaded anew: what a view shows of it is void.
    void sig_reLoadData(int nRole);
    void sig_videoPathChanged();
    // False before, true after the server has taken the request; the work itself goes on there.
    void sig_updateLibraryCompleted(bool bFinish);
    void sig_rebuildLibraryCompleted(bool bFinish);
    // A load of the role begins or has ended; isLoading() tells which.
    void sig_mediaScanStateChanged(int nRole);
    // After every heartbeat; isScanFinished() holds its result.
    void sig_updateHeartBeat();
    // Once, at the end of the start: the folders are known, or the server did not answer.
    void sig_meidaServerPathLoaded();

    void sig_musicPlaylistLoaded(QString id);
    void sig_musicPlaylistSongLoaded(QString strPlaylist, QString songId);
    void sig_musicPlaylistSongRemove(QString strPlaylist, QString songId);
    void sig_musicAlbumLoaded(QString id);
    void sig_musicArtistLoaded(QString id);
    void sig_musicGenresLoaded(QString id);
    void sig_musicSongLoaded(QString id);
    void sig_musicPlaylistRemoved(QString id);
    void sig_musicAlbumRemoved(QString id);
    void sig_musicArtistRemoved(QString id);
    void sig_musicGenreRemoved(QString id);
    void sig_musicPathChanged();
    void sig_musicSongLikeChanged(QString id);
    void sig_musicSongRemoved(QString id);
    void sig_musicRecentClean();
    void sig_musicRecentSongChanged(QString id);
    void sig_musicSongUpdated(QString id);
};
