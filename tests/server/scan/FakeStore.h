// A database in memory: what scans store, read back as they ask for it, and the library folders.
//
// Written by the thread of the scan, looked at by the test; every operation locks.
#pragma once

#include "store/ILibraryRoots.h"
#include "store/IScanStore.h"

#include <map>
#include <mutex>
#include <utility>

class FakeStore final : public IScanStore, public ILibraryRoots {
public:
    static constexpr int VideoLibrary = 1;
    static constexpr int MusicLibrary = 2;

    QHash<QString, QByteArray> fingerprints(int pathId) const override;
    QVector<ScannedSong> storedSongs(int pathId, const QString &folder) const override;
    QVector<ScannedVideo> storedVideos(int pathId, const QString &folder) const override;
    bool store(const QVector<ScannedFolder> &folders) override;
    bool forgetFolders(int pathId, const QStringList &folders) override;
    void finishScan(int pathId) override;
    bool clearForRebuild(int pathId) override;

    int videoLibraryId() const override { return VideoLibrary; }
    int musicLibraryId() const override { return MusicLibrary; }
    QVector<RootFolder> folders(int libraryId) const override;
    int addFolder(int libraryId, const QString &path, const QString &scraperType) override;
    bool removeFolder(int libraryId, int pathId) override;
    void setOnline(int pathId, bool online) override;

    // For the test.
    QVector<ScannedSong> songs() const;
    ScannedSong song(const QString &path) const;
    QVector<ScannedVideo> videos() const;
    QStringList folderPaths() const;
    QStringList forgotten() const;
    int storedFolders() const;
    int finishedScans() const;
    int clears() const;
    bool isOnline(int pathId) const;
    RootFolder root(int pathId) const;

private:
    mutable std::mutex m_mutex;
    // The same folder may be in both libraries.
    using Place = std::pair<int, QString>;
    std::map<Place, ScannedFolder> m_folders;
    std::map<int, RootFolder> m_roots;
    QStringList m_forgotten;
    int m_stored{0};
    int m_finished{0};
    int m_clears{0};
    int m_lastId{0};
};
