// What a scan reads from the database and writes to it. One scan at a time, from the thread of the scan.
#pragma once

#include "records/ScanRecords.h"

#include <QHash>
#include <QVector>

class IScanStore {
public:
    virtual ~IScanStore() = default;

    // Absolute folder path to fingerprint, for every folder below a library folder that was stored.
    [[nodiscard]] virtual QHash<QString, QByteArray> fingerprints(int pathId) const = 0;

    // The songs or videos that are stored for a folder with an unchanged stamp need not be read again: these
    // are they, as they were scanned.
    [[nodiscard]] virtual QVector<ScannedSong> storedSongs(int pathId, const QString &folder) const = 0;
    [[nodiscard]] virtual QVector<ScannedVideo> storedVideos(int pathId, const QString &folder) const = 0;

    // Stores whole folders in one transaction. A file that left one folder and came into another under the
    // same size, time and content start keeps its record, its likes and its playlists, within one call or
    // across two. What a user has changed stays as the user left it. False when nothing was stored.
    virtual bool store(const QVector<ScannedFolder> &folders) = 0;

    // Folders that are gone from disk: their files count as missing. Missing files stand in no list and come
    // back with all that was known of them when they are found again.
    virtual bool forgetFolders(int pathId, const QStringList &folders) = 0;

    // Called once a scan of a folder has come to its end: what is missing for a long time is dropped, shows
    // and collections and albums without contents too.
    virtual void finishScan(int pathId) = 0;

    // Empties all of a library folder that a scan of it finds again and keeps what a user made. Its folders
    // stay known, under no fingerprint, so that a mount point that lost its disk is not taken for empty.
    virtual bool clearForRebuild(int pathId) = 0;
};
