// The folders of the two libraries.
#pragma once

#include "ILibraryRoots.h"

class Connection;
class Database;

class LibraryRoots final : public ILibraryRoots {
public:
    static constexpr int kVideoLibrary = 1;
    static constexpr int kMusicLibrary = 2;

    explicit LibraryRoots(const Database &database);

    [[nodiscard]] int videoLibraryId() const override;
    [[nodiscard]] int musicLibraryId() const override;
    [[nodiscard]] QVector<RootFolder> folders(int libraryId) const override;
    // Another scraper type for a known folder makes it be read anew.
    int addFolder(int libraryId, const QString &path, const QString &scraperType) override;
    // The records are kept hidden for as long as those of missing files are: added again, the folder has its
    // ids, likes and playlists back.
    bool removeFolder(int libraryId, int pathId) override;
    void setOnline(int pathId, bool online) override;

private:
    const Database &m_database;
};
